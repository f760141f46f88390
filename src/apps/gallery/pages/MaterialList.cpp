#include "MaterialList.h"

#include "MaterialLibrary.h"

#include <ZelWidgets/ZelStyleIcon>

#include <QBitmap>
#include <QClipboard>
#include <QCursor>
#include <QDropEvent>
#include <QFileInfo>
#include <QGuiApplication>
#include <QHBoxLayout>
#include <QImageReader>
#include <QLabel>
#include <QMimeData>
#include <QPainter>
#include <QPointer>
#include <QScreen>
#include <QUrl>

#include <algorithm>

namespace {

constexpr int numberRole = Qt::UserRole + 1;
constexpr int mostFiles = 500;
constexpr int fileThumbnail = 256;
constexpr int tipPicture = 160;
constexpr int tipDistance = 16;

/// A small picture of a file, or an icon for what is no picture or lies elsewhere.
QIcon iconOfFile(const QString &path)
{
    if (path.isEmpty())
        return ZelStyleIcon(QStringLiteral(":/ui/icons/link.svg"));
    QImageReader reader(path);
    const QSize size = reader.size();
    if (size.isValid()) {
        const QSize most(fileThumbnail, fileThumbnail);
        if (size.width() > most.width() || size.height() > most.height())
            reader.setScaledSize(size.scaled(most, Qt::KeepAspectRatio).expandedTo({1, 1}));
        const QImage image = reader.read();
        if (!image.isNull())
            return QIcon(QPixmap::fromImage(image));
    }
    const bool isFolder = QFileInfo(path).isDir();
    return ZelStyleIcon(isFolder ? QStringLiteral(":/ui/icons/folder.svg")
                                 : QStringLiteral(":/ui/icons/book.svg"));
}

/// File managers propose to move; nothing is moved into a list.
void copyOnly(QDropEvent *event)
{
    if (event->possibleActions().testFlag(Qt::CopyAction))
        event->setDropAction(Qt::CopyAction);
}

/// The list's own tool tip: a large picture with its figures.
class MaterialTip : public QFrame
{
public:
    explicit MaterialTip(QWidget *parent)
        : QFrame(parent, Qt::ToolTip)
        , picture_(new QLabel(this))
        , text_(new QLabel(this))
    {
        setObjectName(QStringLiteral("MaterialTip"));
        setFrameShape(QFrame::StyledPanel);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        auto *row = new QHBoxLayout(this);
        row->addWidget(picture_);
        row->addWidget(text_);
    }

    void showFor(const QListWidgetItem *item)
    {
        const int number = MaterialList::numberOf(item);
        const MaterialLibrary::Material material = MaterialLibrary::material(std::max(number, 0));
        picture_->setPixmap(
            item->icon().pixmap(QSize(tipPicture, tipPicture), devicePixelRatioF()));
        text_->setText(number < 0 ? item->text()
                                  : MaterialList::tr("%1\n%2, %3\nRoughness %4")
                                        .arg(item->text(), material.kind, material.color.name())
                                        .arg(material.roughness, 0, 'f', 2));
        adjustSize();
        QPoint place = QCursor::pos() + QPoint(tipDistance, tipDistance);
        if (const QScreen *on = QGuiApplication::screenAt(QCursor::pos())) {
            const QRect free = on->availableGeometry();
            place.setX(std::max(free.left(), std::min(place.x(), free.right() - width())));
            if (place.y() + height() > free.bottom())
                place.setY(QCursor::pos().y() - height() - tipDistance);
        }
        move(place);
        show();
    }

private:
    QLabel *picture_;
    QLabel *text_;
};

} // namespace

class MaterialList::Adapter : public ZelIconListWidgetAdapter
{
public:
    void copyItem(QListWidgetItem *item) override
    {
        const int number = numberOf(item);
        QMimeData *data = MaterialLibrary::toMimeData(number < 0 ? QList<int>() : QList{number});
        data->setText(item->text());
        QGuiApplication::clipboard()->setMimeData(data);
        Q_EMIT list->said(MaterialList::tr("%1 copied").arg(item->text()));
    }
    void openItem(QListWidgetItem *item) override
    {
        Q_EMIT list->said(MaterialList::tr("%1 opened").arg(item->text()));
    }
    void showToolTip(QListWidgetItem *item) override
    {
        if (!tip)
            tip = new MaterialTip(list->window());
        tip->showFor(item);
    }
    void hideToolTip() override
    {
        if (tip)
            tip->hide();
    }
    /// Round, as the ball.
    QBitmap *dragMask(QListWidgetItem *item, QSize const &size, double) override
    {
        if (numberOf(item) < 0)
            return nullptr;
        auto *mask = new QBitmap(size);
        mask->clear();
        QPainter painter(mask);
        painter.setBrush(Qt::color1);
        painter.setPen(Qt::NoPen);
        painter.drawEllipse(mask->rect());
        return mask;
    }

    MaterialList *list = nullptr;
    QPointer<MaterialTip> tip;
};

MaterialList::MaterialList(const QString &name, QWidget *parent)
    : MaterialList(name, parent, new Adapter)
{}

MaterialList::MaterialList(const QString &name, QWidget *parent, Adapter *adapter)
    : ZelIconListWidget(parent, adapter)
    , ownAdapter_(adapter)
{
    adapter->list = this;
    setAccessibleName(name);
    setSelectionMode(ExtendedSelection);
    enableCustomTooltips(true);
}

MaterialList::~MaterialList()
{
    delete ownAdapter_->tip;
}

int MaterialList::numberOf(const QListWidgetItem *item)
{
    const QVariant number = item->data(numberRole);
    return number.isValid() ? number.toInt() : -1;
}

QList<int> MaterialList::selectedMaterials() const
{
    QList<int> numbers;
    for (const QListWidgetItem *item : selectedItems()) {
        if (numberOf(item) >= 0)
            numbers << numberOf(item);
    }
    return numbers;
}

void MaterialList::addMaterials(const QList<int> &numbers)
{
    // Sorted once, not at each of ten thousand items.
    setSortingEnabled(false);
    for (const int number : numbers) {
        auto *item = new QListWidgetItem(MaterialLibrary::icon(number),
                                         MaterialLibrary::material(number).name);
        item->setData(numberRole, number);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        addItem(item);
    }
    setSortingEnabled(true);
    sortItems(Qt::AscendingOrder);
}

void MaterialList::addFiles(const QList<QUrl> &urls)
{
    for (const QUrl &url : urls.mid(0, mostFiles)) {
        const QString path = url.toLocalFile();
        const QString name = QFileInfo(path.isEmpty() ? url.path() : path).fileName();
        auto *item =
            new QListWidgetItem(iconOfFile(path), name.isEmpty() ? url.toDisplayString() : name);
        item->setFlags(item->flags() | Qt::ItemIsEditable);
        addItem(item);
    }
    if (urls.size() > mostFiles)
        Q_EMIT said(tr("Only the first %1 files were taken").arg(mostFiles));
}

// Drag and drop

QStringList MaterialList::mimeTypes() const
{
    return {MaterialLibrary::mimeType(), QStringLiteral("text/uri-list")};
}

QMimeData *MaterialList::mimeData(const QList<QListWidgetItem *> &items) const
{
    QList<int> numbers;
    QStringList names;
    for (const QListWidgetItem *item : items) {
        if (numberOf(item) >= 0)
            numbers << numberOf(item);
        names << item->text();
    }
    QMimeData *data = MaterialLibrary::toMimeData(numbers);
    data->setText(names.join(u'\n'));
    return data;
}

Qt::DropActions MaterialList::supportedDropActions() const
{
    return Qt::CopyAction;
}

void MaterialList::dragEnterEvent(QDragEnterEvent *event)
{
    copyOnly(event);
    ZelIconListWidget::dragEnterEvent(event);
}

void MaterialList::dragMoveEvent(QDragMoveEvent *event)
{
    copyOnly(event);
    ZelIconListWidget::dragMoveEvent(event);
    if (event->source() == this)
        event->ignore();
}

void MaterialList::dropEvent(QDropEvent *event)
{
    copyOnly(event);
    if (event->source() == this)
        event->ignore();
    else
        ZelIconListWidget::dropEvent(event);
    // Qt takes what was proposed, and who hears of a move deletes the files.
    copyOnly(event);
}

bool MaterialList::dropMimeData(int, const QMimeData *data, Qt::DropAction)
{
    const QList<int> numbers = MaterialLibrary::fromMimeData(data);
    const QList<QUrl> urls = data->urls();
    if (numbers.isEmpty() && urls.isEmpty())
        return false;
    addMaterials(numbers);
    addFiles(urls);
    Q_EMIT said(tr("%1: materials dropped: %2, files dropped: %3")
                    .arg(accessibleName())
                    .arg(numbers.size())
                    .arg(urls.size()));
    return true;
}
