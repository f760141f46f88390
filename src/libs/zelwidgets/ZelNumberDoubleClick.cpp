#include "ZelNumberDoubleClick.h"

#include <QAbstractSpinBox>
#include <QLineEdit>
#include <QMouseEvent>

namespace {

/// One for all fields. The line edit gets the event first, as it counts clicks.
class WholeNumberSelector : public QObject
{
public:
    bool eventFilter(QObject *line, QEvent *event) override
    {
        auto *field = qobject_cast<QAbstractSpinBox *>(line->parent());
        if (field && event->type() == QEvent::MouseButtonDblClick &&
            static_cast<QMouseEvent *>(event)->button() == Qt::LeftButton)
            QMetaObject::invokeMethod(field, &QAbstractSpinBox::selectAll, Qt::QueuedConnection);
        return false;
    }
};

} // namespace

void ZelNumberDoubleClick::install(QAbstractSpinBox *field)
{
    static WholeNumberSelector selector;
    if (auto *line = field->findChild<QLineEdit *>(QString(), Qt::FindDirectChildrenOnly))
        line->installEventFilter(&selector);
}
