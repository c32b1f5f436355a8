#pragma once
// Marks a line edit whose text cannot be taken as it stands: its text and background turn to
// the warning colours of the current colour mode and its tooltip says what is wrong, until the
// text is corrected. The value the control reads is not changed by the marking.

#include "QelMfc0/QelMfc0Export.h"
#include <QObject>
#include <QString>

class QLineEdit;

class QELMFC0_EXPORT InputMarker : public QObject
{
    Q_OBJECT
public:
    // Warning colours (0x00BBGGRR), converted by the colour mode when they are applied.
    static constexpr quint32 kWarningText = 0x000000B0;       // dark red
    static constexpr quint32 kWarningBackground = 0x00E0E0FF; // pale red

    // Marks `edit` (it owns the marker); unmarked at first.
    explicit InputMarker(QLineEdit* edit);

    // What is wrong with the text, shown in the tooltip; empty when the text is fine.
    void SetProblem(const QString& problem);
    QString Problem() const { return m_problem; }
    bool IsMarked() const { return !m_problem.isEmpty(); }
    // The tooltip shown under the problem, or alone when there is none (rich text allowed).
    void SetToolTip(const QString& toolTip);

private:
    void apply();

    QLineEdit* m_edit;
    QString m_problem;
    QString m_toolTip;
};
