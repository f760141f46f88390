#include "ZelComboLineEdit.h"

#include <QComboBox>
#include <QMouseEvent>

namespace {

// A point on the arrow: this far from the end of the combo box.
constexpr int arrowDistance = 6;

struct ComboPress : QComboBox
{
    static void send(QComboBox *combo, QMouseEvent *event)
    {
        (combo->*(&ComboPress::mousePressEvent))(event);
    }
};

} // namespace

/// Keeps the press that closes the pop-up from reaching what lies under it.
class ZelComboLineEdit::ClickFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::MouseButtonPress && watched->isWidgetType())
            static_cast<QWidget *>(watched)->setAttribute(Qt::WA_NoMouseReplay);
        return QObject::eventFilter(watched, event);
    }
};

ZelComboLineEdit::ZelComboLineEdit(QComboBox *combo)
    : QLineEdit(combo)
    , combo_(combo)
{
    setContentsMargins(0, 0, 0, 0);
    setTextMargins(0, 0, 0, 0);
    setStyleSheet(
        QStringLiteral(" ZelComboLineEdit { background : transparent; border : 1px transparent }"));
    setFocusPolicy(Qt::NoFocus);
    setReadOnly(true);
    if (!combo_) {
        qWarning("ZelComboLineEdit: there is no combo box");
        return;
    }
    combo_->setLineEdit(this);
    filter_ = new ClickFilter(combo_);
}

ZelComboLineEdit::~ZelComboLineEdit() = default;

void ZelComboLineEdit::mousePressEvent(QMouseEvent *event)
{
    if (event->button() != Qt::LeftButton || !combo_) {
        QLineEdit::mousePressEvent(event);
        return;
    }
    const bool isMirrored = combo_->layoutDirection() == Qt::RightToLeft;
    const QPointF arrow(isMirrored ? arrowDistance : combo_->width() - arrowDistance,
                        combo_->height() / 2);
    QMouseEvent press(event->type(), arrow, combo_->mapToGlobal(arrow), event->button(),
                      event->buttons(), event->modifiers(), event->pointingDevice());
    ComboPress::send(combo_, &press);
    if (auto *popup = combo_->findChild<QFrame *>())
        popup->installEventFilter(filter_);
}

void ZelComboLineEdit::mouseMoveEvent(QMouseEvent *) {}

void ZelComboLineEdit::mouseDoubleClickEvent(QMouseEvent *) {}
