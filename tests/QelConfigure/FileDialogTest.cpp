#include <QelConfigure/DataSearch.h>
#include <QelConfigure/FileDialogRequest.h>
#include <QelConfigure/FileTypeDialog.h>

#include "common/TestProject.h"

#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include <gtest/gtest.h>

#include <optional>

namespace {

// Installs a hook for one test that records the request and answers with `answer`.
class HookScope
{
public:
    explicit HookScope(QStringList answer, bool ok = true)
    {
        SetFileDialogHook([this, answer, ok](const FileDialogRequest& request, QStringList& chosen) {
            seen = request;
            ++calls;
            chosen = answer;
            return ok;
        });
    }
    ~HookScope() { SetFileDialogHook({}); }
    std::optional<FileDialogRequest> seen;
    int calls = 0;
};

} // namespace

TEST(FileDialogRequest, QtNameFilters)
{
    const std::pair<const char*, QStringList> cases[] = {
        {"Bitmap File (*.bmp)|*.bmp||", {"Bitmap File (*.bmp)"}},
        {"Joint Photographic Group File (*.jpg)|*.jpg|Bitmap File (*.bmp)|*.bmp||",
         {"Joint Photographic Group File (*.jpg)", "Bitmap File (*.bmp)"}},
        {"Images|*.jpg; *.jpeg|", {"Images (*.jpg *.jpeg)"}},
        {"*.csv", {}},
        {"Text (*.txt)|*.txt|Other||", {}},
        {"Odd|*(x)||", {}},
    };
    for (const auto& [filter, expected] : cases)
        EXPECT_EQ(QtNameFilters(QString::fromUtf8(filter)), expected) << filter;
}

TEST(FileDialogRequest, RealDialogFollowsTheRequest)
{
    using namespace FileDialogFlags;
    struct Case { FileDialogRequest::Mode mode; quint32 flags; QFileDialog::FileMode fileMode;
                  QFileDialog::AcceptMode accept; bool confirmOverwrite; };
    const Case cases[] = {
        {FileDialogRequest::Open, OFN_EXPLORER, QFileDialog::ExistingFile, QFileDialog::AcceptOpen, false},
        {FileDialogRequest::Save, OFN_OVERWRITEPROMPT, QFileDialog::AnyFile, QFileDialog::AcceptSave, true},
    };
    TestProject test;
    for (const Case& c : cases) {
        FileDialogRequest request;
        request.mode = c.mode;
        request.flags = c.flags;
        request.directory = test.CommonFolder();
        request.filter = QStringLiteral("Units (*.def)|*.def||");
        request.defaultSuffix = QStringLiteral(".def");
        std::optional<bool> native, confirm;
        QFileDialog::FileMode fileMode{};
        QFileDialog::AcceptMode accept{};
        QStringList filters;
        QString suffix;
        QTimer inspector;
        QObject::connect(&inspector, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
            if (!dialog)
                return;
            native = !dialog->testOption(QFileDialog::DontUseNativeDialog);
            confirm = !dialog->testOption(QFileDialog::DontConfirmOverwrite);
            fileMode = dialog->fileMode();
            accept = dialog->acceptMode();
            filters = dialog->nameFilters();
            suffix = dialog->defaultSuffix();
            dialog->reject();
        });
        inspector.start(10);
        QStringList chosen;
        EXPECT_FALSE(RunFileDialog(request, chosen));
        inspector.stop();
        ASSERT_TRUE(native.has_value());
        EXPECT_FALSE(*native);
        EXPECT_EQ(fileMode, c.fileMode);
        EXPECT_EQ(accept, c.accept);
        EXPECT_TRUE(c.mode != FileDialogRequest::Save || *confirm == c.confirmOverwrite);
        EXPECT_EQ(filters, QStringList{QStringLiteral("Units (*.def)")});
        EXPECT_EQ(suffix, QStringLiteral("def"));
        EXPECT_TRUE(chosen.isEmpty());
    }
}

TEST(FileTypeDialog, OpenAColourTableAndSaveAProjectThroughTheHook)
{
    TestProject test;
    ASSERT_TRUE(test.IsOpen());
    using namespace FileDialogFlags;
    const struct { int type; bool save; QString chosen, directory, defaultName, title; quint32 set, unset; } cases[] = {
        {25, false, test.CommonFolder() + "/ColorTables/Depth Shallow.v2.ctb", test.CommonFolder() + "/ColorTables",
         {}, "Depth Shallow.v2", OFN_FILEMUSTEXIST, OFN_OVERWRITEPROMPT},
        {13, true, test.ProjectFolder() + "/Project.qpd", test.ProjectFolder(), "Project.qpd", "Project", OFN_OVERWRITEPROMPT, 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.type);
        HookScope hook({c.chosen});
        FileTypeDialog dialog(c.type, c.save, nullptr);
        ASSERT_TRUE(dialog.Go());
        ASSERT_TRUE(hook.seen);
        EXPECT_EQ(hook.seen->mode, c.save ? FileDialogRequest::Save : FileDialogRequest::Open);
        EXPECT_EQ(hook.seen->directory, c.directory);
        if (c.save) {
            EXPECT_EQ(hook.seen->defaultName, c.defaultName);
        } else {
            EXPECT_EQ(hook.seen->filter, QStringLiteral("Color Table File (*.ctb)|*.ctb||"));
        }
        EXPECT_EQ(hook.seen->flags & (c.set | c.unset), c.set);
        EXPECT_EQ(dialog.GetPathName(), c.chosen);
        EXPECT_EQ(dialog.GetFileTitle(), c.title);
    }
}

TEST(FileTypeDialog, CancelAndUnknownTypes)
{
    HookScope cancel({"/x.ctb"}, false);
    FileTypeDialog cancelled(25, false, nullptr);
    EXPECT_FALSE(cancelled.Go());
    EXPECT_TRUE(cancelled.GetPathName().isEmpty());

    const int callsBefore = cancel.calls;
    FileTypeDialog unknown(4242, false, nullptr);
    EXPECT_FALSE(unknown.Go());
    EXPECT_EQ(cancel.calls, callsBefore);

    // OK without a file is no choice.
    FileDialogRequest request;
    QStringList chosen{"stale"};
    HookScope none({}, true);
    EXPECT_FALSE(RunFileDialog(request, chosen));
    EXPECT_TRUE(chosen.isEmpty());
}
