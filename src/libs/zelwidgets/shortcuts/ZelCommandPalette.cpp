#include "ZelCommandPalette.h"

#include "ZelCommandDelegate.h"
#include "ZelCommandModel.h"

#include <QApplication>
#include <QHideEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QPointer>
#include <QScreen>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int widthInLetters = 60;
constexpr int shownRows = 9;
constexpr int distance = 8;

bool isRunKey(int key)
{
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

bool isStepKey(int key)
{
    return key == Qt::Key_Up || key == Qt::Key_Down || key == Qt::Key_PageUp ||
           key == Qt::Key_PageDown;
}

} // namespace

class ZelCommandPalettePrivate
{
public:
    explicit ZelCommandPalettePrivate(ZelCommandPalette *palette)
        : palette_(palette)
        , edit_(new QLineEdit(palette))
        , view_(new QListView(palette))
        , nothingFound_(new QLabel(ZelCommandPalette::tr("No command fits"), view_->viewport()))
        , model_(new ZelCommandModel(palette))
    {}

    void build();
    void place();
    void filter(const QString &text);
    void choose(int row);
    void step(int key);
    bool key(QKeyEvent *event);
    void giveFocusBack();

    ZelCommandPalette *palette_;
    QLineEdit *edit_;
    QListView *view_;
    QLabel *nothingFound_;
    ZelCommandModel *model_;
    QPointer<QWidget> formerFocus_;
};

void ZelCommandPalettePrivate::build()
{
    edit_->setObjectName(QStringLiteral("ZelCommandPaletteSearch"));
    edit_->setPlaceholderText(ZelCommandPalette::tr("Type a few letters of a command"));
    edit_->setAccessibleName(ZelCommandPalette::tr("Search for a command"));
    edit_->installEventFilter(palette_);
    view_->setObjectName(QStringLiteral("ZelCommandPaletteList"));
    view_->setAccessibleName(ZelCommandPalette::tr("Commands"));
    view_->setModel(model_);
    view_->setItemDelegate(new ZelCommandDelegate(view_));
    view_->setUniformItemSizes(true);
    view_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    view_->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    // Typing goes on while users move through the list.
    view_->setFocusPolicy(Qt::NoFocus);
    nothingFound_->setAlignment(Qt::AlignCenter);
    nothingFound_->setEnabled(false);
    (new QVBoxLayout(view_->viewport()))->addWidget(nothingFound_);
    auto *layout = new QVBoxLayout(palette_);
    layout->addWidget(edit_);
    layout->addWidget(view_, 1);
    QObject::connect(edit_, &QLineEdit::textChanged, palette_,
                     [this](const QString &text) { filter(text); });
    QObject::connect(view_, &QListView::clicked, palette_, &ZelCommandPalette::runCurrent);
}

void ZelCommandPalettePrivate::place()
{
    const QWidget *parent = palette_->parentWidget();
    const QRect room =
        parent ? QRect(parent->window()->mapToGlobal(QPoint()), parent->window()->size())
               : palette_->screen()->availableGeometry();
    const int wished = palette_->fontMetrics().averageCharWidth() * widthInLetters;
    const int width = std::max(1, std::min(wished, room.width() - 2 * distance));
    const QMargins margins = palette_->layout()->contentsMargins();
    const int rowHeight = std::max(1, view_->sizeHintForRow(0));
    const int height = margins.top() + edit_->sizeHint().height() + palette_->layout()->spacing() +
                       shownRows * rowHeight + 2 * view_->frameWidth() + margins.bottom();
    palette_->setGeometry(room.center().x() - width / 2, room.top() + distance, width,
                          std::min(height, std::max(1, room.height() - 2 * distance)));
}

void ZelCommandPalettePrivate::filter(const QString &text)
{
    model_->setPattern(text);
    choose(0);
}

void ZelCommandPalettePrivate::choose(int row)
{
    nothingFound_->setVisible(model_->rowCount() == 0);
    if (model_->rowCount() == 0) {
        edit_->setAccessibleDescription(nothingFound_->text());
        return;
    }
    row = std::clamp(row, 0, model_->rowCount() - 1);
    view_->setCurrentIndex(model_->index(row));
    edit_->setAccessibleDescription(model_->spokenText(row));
}

void ZelCommandPalettePrivate::step(int key)
{
    const int rows = model_->rowCount();
    const int row = view_->currentIndex().row();
    // At the ends single steps go round.
    if (key == Qt::Key_Up)
        choose(row > 0 ? row - 1 : rows - 1);
    else if (key == Qt::Key_Down)
        choose(row + 1 < rows ? row + 1 : 0);
    else
        choose(row + (key == Qt::Key_PageUp ? -shownRows : shownRows));
}

bool ZelCommandPalettePrivate::key(QKeyEvent *event)
{
    const int key = event->key();
    const bool isOurs = isRunKey(key) || isStepKey(key) || key == Qt::Key_Escape;
    if (!isOurs)
        return false;
    event->accept();
    if (event->type() == QEvent::ShortcutOverride)
        return true;
    if (isRunKey(key))
        palette_->runCurrent();
    else if (isStepKey(key))
        step(key);
    else
        palette_->hide();
    return true;
}

void ZelCommandPalettePrivate::giveFocusBack()
{
    const QPointer<QWidget> former = std::exchange(formerFocus_, nullptr);
    if (former && former->isVisible())
        former->setFocus(Qt::PopupFocusReason);
}

ZelCommandPalette::ZelCommandPalette(QWidget *parent)
    : QFrame(parent, Qt::Popup)
    , d_(std::make_unique<ZelCommandPalettePrivate>(this))
{
    setObjectName(QStringLiteral("ZelCommandPalette"));
    setWindowTitle(tr("Commands"));
    setAccessibleName(tr("Commands"));
    setFrameShape(QFrame::StyledPanel);
    d_->build();
}

ZelCommandPalette::~ZelCommandPalette() = default;

QLineEdit *ZelCommandPalette::lineEdit() const
{
    return d_->edit_;
}

QListView *ZelCommandPalette::listView() const
{
    return d_->view_;
}

void ZelCommandPalette::open()
{
    if (isVisible())
        return;
    d_->formerFocus_ = QApplication::focusWidget();
    d_->edit_->clear();
    d_->model_->setCommands(ZelCommand::all(d_->formerFocus_));
    d_->choose(0);
    ensurePolished();
    d_->place();
    show();
    d_->edit_->setFocus(Qt::PopupFocusReason);
}

void ZelCommandPalette::runCurrent()
{
    const QModelIndex current = d_->view_->currentIndex();
    if (!current.isValid() || !d_->model_->command(current.row()).isEnabled())
        return;
    const ZelCommand command = d_->model_->command(current.row());
    const QPointer<ZelCommandPalette> self(this);
    hide();
    if (self)
        Q_EMIT aboutToRun(command.id());
    command.run();
}

bool ZelCommandPalette::eventFilter(QObject *watched, QEvent *event)
{
    const bool isKey =
        event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (watched == d_->edit_ && isKey && d_->key(static_cast<QKeyEvent *>(event)))
        return true;
    return QFrame::eventFilter(watched, event);
}

void ZelCommandPalette::hideEvent(QHideEvent *event)
{
    QFrame::hideEvent(event);
    if (!event->spontaneous())
        d_->giveFocusBack();
}
