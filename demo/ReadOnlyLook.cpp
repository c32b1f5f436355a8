#include "ReadOnlyLook.h"

#include <QApplication>
#include <QLineEdit>

namespace {

const char* const kMarked = "qelReadOnlyLook";

class Looker : public QObject {
public:
    using QObject::QObject;

    void Watch(QLineEdit* edit)
    {
        edit->removeEventFilter(this);
        edit->installEventFilter(this);
        Apply(edit);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::ReadOnlyChange:
        case QEvent::PaletteChange:
        case QEvent::ApplicationPaletteChange:
        case QEvent::StyleChange:
        case QEvent::Polish:
            if (auto* edit = qobject_cast<QLineEdit*>(watched))
                Apply(edit);
            break;
        default:
            break;
        }
        return false;
    }

private:
    static void Apply(QLineEdit* edit)
    {
        if (edit->isReadOnly()) {
            // Only the fill is set, from the window colour the field inherits (or, where that is
            // the editable fields' colour too, the light shade of the 3-D frames); every other
            // role keeps following the application's palette, and a change of it comes back here.
            const QPalette inherited = edit->parentWidget() ? edit->parentWidget()->palette() : QApplication::palette(edit);
            QPalette wanted;
            for (QPalette::ColorGroup group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
                const bool alike = inherited.color(group, QPalette::Window) == inherited.color(group, QPalette::Base);
                wanted.setBrush(group, QPalette::Base, inherited.brush(group, alike ? QPalette::Midlight : QPalette::Window));
            }
            if (!edit->property(kMarked).toBool()
                || edit->palette().brush(QPalette::Active, QPalette::Base) != wanted.brush(QPalette::Active, QPalette::Base)) {
                edit->setProperty(kMarked, true);
                edit->setPalette(wanted);
            }
        } else if (edit->property(kMarked).toBool()) {
            edit->setProperty(kMarked, false);
            edit->setPalette(QPalette()); // inherit again
        }
    }
};

} // namespace

void ReadOnlyLook::Follow(QWidget* root)
{
    auto* looker = new Looker(root);
    const auto edits = root->findChildren<QLineEdit*>();
    for (QLineEdit* edit : edits)
        looker->Watch(edit);
}
