#pragma once
// Gallery page of the library frame: start-up state, project, identifiers and file dialogs.

#include <QWidget>

class QLabel;

class LibraryPage : public QWidget {
    Q_OBJECT
public:
    explicit LibraryPage(QWidget* parent = nullptr);

private:
    void ShowResult(const QString& text);
    QLabel* m_result = nullptr;
};
