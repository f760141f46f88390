#include "color/ZelColorViewer.h"

#include "color/ZelColorText.h"
#include "color/ZelColorWidget.h"

#include <ZelCore/ZelGammaPolicy>

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QMouseEvent>
#include <QVBoxLayout>

namespace {

constexpr QSize fieldSize(64, 24);
constexpr int fieldSpacing = 2;

void addCopyEntry(QMenu *menu, const QString &text, const QString &numbers)
{
    // What stands behind the tabulator is shown where others have their keys.
    QAction *action = menu->addAction(text + u'\t' + numbers);
    QObject::connect(action, &QAction::triggered, menu,
                     [numbers] { QGuiApplication::clipboard()->setText(numbers); });
}

} // namespace

ZelColorViewer::ZelColorViewer(const ZelColor &color, QWidget *parent)
    : QWidget(parent)
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    old_ = addField(tr("Old"), color);
    new_ = addField(tr("New"), color);
    old_->setAcceptDrops(false);
    row->addStretch();
}

ZelColorWidget *ZelColorViewer::addField(const QString &text, const ZelColor &color)
{
    auto *field = new ZelColorWidget(zelsg::Color(color), fieldSize, false, this);
    field->setAccessibleName(text);
    field->installEventFilter(this);
    connect(field, &ZelColorWidget::clicked, this, &ZelColorViewer::colorSelected);
    connect(field, &ZelColorWidget::doubleClicked, this, &ZelColorViewer::doubleClick);
    connect(field, &ZelColorWidget::colorUpdated, this,
            [this](const zelsg::Color &dropped) { Q_EMIT colorSelected(dropped.getActive()); });
    auto *column = new QVBoxLayout;
    column->setSpacing(fieldSpacing);
    column->addWidget(new QLabel(text, this));
    column->addWidget(field);
    static_cast<QHBoxLayout *>(layout())->addLayout(column);
    return field;
}

void ZelColorViewer::setOldColor(const ZelColor &color)
{
    old_->setActiveColor(color);
}

ZelColor ZelColorViewer::oldColor() const
{
    return old_->getZelColor();
}

ZelColor ZelColorViewer::color() const
{
    return new_->getZelColor();
}

void ZelColorViewer::setColor(ZelColor color)
{
    new_->setActiveColor(color);
}

/// The right button opens the menu and must not take the colour as any other click does.
bool ZelColorViewer::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != old_ && watched != new_)
        return QWidget::eventFilter(watched, event);
    auto *field = static_cast<ZelColorWidget *>(watched);
    if (event->type() == QEvent::ContextMenu) {
        const auto *request = static_cast<QContextMenuEvent *>(event);
        const bool isByMouse = request->reason() == QContextMenuEvent::Mouse;
        showMenu(field,
                 isByMouse ? request->globalPos() : field->mapToGlobal(field->rect().bottomLeft()));
        return true;
    }
    const bool isPress =
        event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick;
    return isPress && static_cast<QMouseEvent *>(event)->button() == Qt::RightButton;
}

void ZelColorViewer::showMenu(ZelColorWidget *field, const QPoint &place)
{
    const ZelGammaPolicy *policy = ZelGammaPolicy::get();
    const ZelColor held = field->getZelColor();
    const ZelColor color = policy->areValuesGammaCorrected() ? policy->gammaCorrect(held) : held;
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    addCopyEntry(menu, tr("Copy as Hex"), ZelColorText::hex(color));
    addCopyEntry(menu, tr("Copy as rgb()"), ZelColorText::rgb(color));
    addCopyEntry(menu, tr("Copy as Floats"), ZelColorText::floats(color));
    menu->popup(place);
}
