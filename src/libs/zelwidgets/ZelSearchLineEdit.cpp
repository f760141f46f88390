#include "ZelSearchLineEdit.h"

#include "theme/ZelStyleIcon.h"

#include <QCoreApplication>
#include <QEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QScopedValueRollback>
#include <QStyle>
#include <QToolButton>

#include <algorithm>

ZelSearchLineEdit::ZelSearchLineEdit(QWidget *parent)
    : QLineEdit(parent)
    , clearButton_(addButton(QStringLiteral(":/ui/icons/search_cancel.svg"), tr("Clear")))
    , searchButton_(addButton(QStringLiteral(":ui/icons/search"), tr("Search")))
{
    clearButton_->hide();
    connect(clearButton_, &QToolButton::clicked, this, &QLineEdit::clear);
    connect(searchButton_, &QToolButton::clicked, this, &QLineEdit::selectAll);
    connect(this, &QLineEdit::textChanged, this, &ZelSearchLineEdit::updateCloseButton);
    updateRoom();
}

QToolButton *ZelSearchLineEdit::addButton(const QString &icon, const QString &name)
{
    auto *button = new QToolButton(this);
    button->setIcon(ZelStyleIcon(icon));
    button->setCursor(Qt::ArrowCursor);
    button->setStyleSheet(
        QStringLiteral("QToolButton { background: transparent; border: none; padding: 0px; }"));
    button->setFocusPolicy(Qt::NoFocus);
    button->setToolTip(name);
    button->setAccessibleName(name);
    return button;
}

void ZelSearchLineEdit::setMenu(QMenu *menu)
{
    searchButton_->setIcon(ZelStyleIcon(menu ? QStringLiteral(":ui/icons/search_dropdown")
                                             : QStringLiteral(":ui/icons/search")));
    searchButton_->setAutoRaise(menu != nullptr);
    searchButton_->setMenu(menu);
    searchButton_->setPopupMode(menu ? QToolButton::InstantPopup : QToolButton::DelayedPopup);
    updateRoom();
}

void ZelSearchLineEdit::showEvent(QShowEvent *event)
{
    QLineEdit::showEvent(event);
    // The buttons have their style, and so their size, only now. They remember an earlier one until
    // they are told.
    for (QToolButton *button : {clearButton_, searchButton_}) {
        QEvent change(QEvent::StyleChange);
        QCoreApplication::sendEvent(button, &change);
    }
    updateRoom();
}

void ZelSearchLineEdit::resizeEvent(QResizeEvent *event)
{
    QLineEdit::resizeEvent(event);
    placeButtons();
}

void ZelSearchLineEdit::keyPressEvent(QKeyEvent *event)
{
    const bool isMenuKey = event->key() == Qt::Key_Down && event->modifiers() == Qt::AltModifier;
    if (isMenuKey && searchButton_->menu()) {
        searchButton_->showMenu();
    } else if (event->key() == Qt::Key_Escape && !text().isEmpty() && !isReadOnly()) {
        clear();
        event->accept();
    } else {
        QLineEdit::keyPressEvent(event);
    }
}

void ZelSearchLineEdit::changeEvent(QEvent *event)
{
    QLineEdit::changeEvent(event);
    if (event->type() == QEvent::StyleChange || event->type() == QEvent::FontChange ||
        event->type() == QEvent::LayoutDirectionChange)
        updateRoom();
}

void ZelSearchLineEdit::updateCloseButton(const QString &text)
{
    clearButton_->setVisible(!text.isEmpty());
}

int ZelSearchLineEdit::frameWidth() const
{
    return style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, this);
}

bool ZelSearchLineEdit::isMirrored() const
{
    return layoutDirection() == Qt::RightToLeft;
}

void ZelSearchLineEdit::updateRoom()
{
    // The sheet that is set here comes back as a StyleChange, while the buttons have lost their
    // style and are larger.
    if (isUpdatingRoom_)
        return;
    const QScopedValueRollback<bool> updating(isUpdatingRoom_, true);
    const QSize clear = clearButton_->sizeHint();
    const QSize search = searchButton_->sizeHint();
    int left = search.width() + frameWidth();
    int right = clear.width() + frameWidth();
    if (isMirrored())
        std::swap(left, right);
    const QString sheet = QStringLiteral("QLineEdit { padding-left: %1px; padding-right: %2px; } ")
                              .arg(left)
                              .arg(right);
    if (sheet != styleSheet())
        setStyleSheet(sheet);
    const QSize larger = clear.expandedTo(search);
    const QSize room(2 * larger.width() + 2, larger.height() + 2 * frameWidth());
    setMinimumSize(minimumSizeHint().expandedTo(room));
    placeButtons();
}

void ZelSearchLineEdit::placeButtons()
{
    const auto place = [this](QToolButton *button, bool atRight) {
        const QSize size = button->sizeHint();
        const int x = atRight ? width() - frameWidth() - size.width() : frameWidth();
        button->setGeometry(QRect(QPoint(x, (height() - size.height()) / 2), size));
    };
    place(clearButton_, !isMirrored());
    place(searchButton_, isMirrored());
}
