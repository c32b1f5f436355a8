// The error message of the library shown to the user.
#include "QelMfc0/QelMfc0Functions.h"

#include <QCoreApplication>
#include <QMessageBox>

void ShowErrorDlg(const QString& message, QWidget* parent)
{
    // A plain modal message box until the error dialog with the error list takes its place.
    QMessageBox box(QMessageBox::Critical, QCoreApplication::translate("QelMfc0", "Error"), message,
                    QMessageBox::Ok, parent);
    box.exec();
}
