// A small host of the installed library: attaches it, opens a project, shows a position in a
// coordinate control and switches to night mode. Exit code 0 when everything worked; otherwise
// the reason on stderr.
#include <QApplication>
#include <QLineEdit>
#include <QStandardPaths>
#include <QVBoxLayout>
#include <QelConfigure/DataSearch.h>
#include <QelMfc0/QelMfc0.h>
#include <QelMfc0/colour/ColorControl.h>
#include <QelMfc0/controls/CoordinateCtrl.h>
#include <cmath>
#include <cstdio>

namespace {
int Fail(const char* what)
{
    std::fprintf(stderr, "qel_package_host: %s\n", what);
    return 1;
}
} // namespace

int main(int argc, char** argv)
{
    QStandardPaths::setTestModeEnabled(true); // the project choice is recorded in test settings
    QApplication app(argc, argv);
    if (argc != 3)
        return Fail("usage: qel_package_host PROJECTS_FOLDER PROJECT");
    if (!IsQelMfc0Attached())
        return Fail("the library did not attach itself when the application started");
    if (!DataSearch::GetDataSearch().Open(QString::fromLocal8Bit(argv[1]), QString::fromLocal8Bit(argv[2])))
        return Fail("the project does not open");

    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* position = new CCoordinateCtrl(false, false, &window);
    layout->addWidget(position);
    window.show();

    position->SetLatLon(52.0, 3.0);
    double x = 0.0, y = 0.0;
    if (!position->GetXY(x, y) || std::abs(x - 500000.0) > 1.0e5 || y < 5.0e6 || y > 6.0e6)
        return Fail("the coordinate control does not convert to the project's grid");
    if (position->Edit1() == nullptr || position->Edit1()->text().isEmpty())
        return Fail("the coordinate control shows no text");

    ColorControl& colours = ColorControl::Instance();
    colours.SetLightMode(ColorConverter::night, false);
    if (colours.GetLightMode() != ColorConverter::night || colours.GetColor(RGB(255, 255, 255), false) == RGB(255, 255, 255))
        return Fail("night mode does not convert white");
    colours.SetLightMode(ColorConverter::normal, false);

    std::printf("qel_package_host: %s, %s in night mode ok\n",
                qPrintable(position->Edit1()->text()), qPrintable(position->Edit2()->text()));
    return 0;
}
