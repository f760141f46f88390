#include "RectItemPage.h"

#include <ZelWidgets/ZelGraphicsRectItem>

#include <QCheckBox>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPainter>
#include <QPen>
#include <QSpinBox>
#include <QVBoxLayout>

#include <array>

namespace {

constexpr QSizeF plateSize(180, 64);
constexpr int stageHeight = 320;

struct Place
{
    int snap;
    const char *name;
};

constexpr std::array places{
    Place{2, QT_TRANSLATE_NOOP("RectItemPage", "Top &left")},
    Place{4, QT_TRANSLATE_NOOP("RectItemPage", "&Top centre")},
    Place{8, QT_TRANSLATE_NOOP("RectItemPage", "Top &right")},
    Place{16, QT_TRANSLATE_NOOP("RectItemPage", "Bottom l&eft")},
    Place{32, QT_TRANSLATE_NOOP("RectItemPage", "Botto&m centre")},
    Place{64, QT_TRANSLATE_NOOP("RectItemPage", "Bottom ri&ght")},
};

} // namespace

/// A view whose scene is as large as itself, with the zone within which the rectangle snaps.
class RectItemPage::Stage : public QGraphicsView
{
public:
    explicit Stage(QWidget *parent)
        : QGraphicsView(parent)
        , item_(new ZelGraphicsRectItem(QRectF(QPointF(), plateSize)))
    {
        setScene(new QGraphicsScene(this));
        setMinimumHeight(stageHeight);
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
        setAlignment(Qt::AlignLeft | Qt::AlignTop);
        text_ = new QGraphicsSimpleTextItem(RectItemPage::tr("Drag me"), item_);
        scene()->addItem(item_);
        item_->setFocus();
    }

    ZelGraphicsRectItem &item() { return *item_; }

    /// That of a view would be its scene's size, which is the view's.
    QSize sizeHint() const override { return {2 * stageHeight, stageHeight}; }

    void setZone(int width)
    {
        zone_ = width;
        viewport()->update();
    }

protected:
    void resizeEvent(QResizeEvent *event) override
    {
        QGraphicsView::resizeEvent(event);
        setSceneRect(QRectF(QPointF(), QSizeF(viewport()->size())));
        scene()->setSceneRect(sceneRect());
        item_->confineToScene();
    }

    void paintEvent(QPaintEvent *event) override
    {
        const QPalette colors = palette();
        item_->setBrush(colors.color(QPalette::Highlight));
        text_->setBrush(colors.color(QPalette::HighlightedText));
        text_->setFont(font());
        text_->setPos(item_->rect().center() - text_->boundingRect().center());
        QGraphicsView::paintEvent(event);
    }

    void drawBackground(QPainter *painter, const QRectF &) override
    {
        painter->fillRect(sceneRect(), palette().color(QPalette::Base));
        QColor line = palette().color(QPalette::Text);
        line.setAlphaF(0.35F);
        painter->setPen(QPen(line, 1, Qt::DashLine));
        painter->drawRect(sceneRect().adjusted(zone_, zone_, -zone_, -zone_));
    }

private:
    ZelGraphicsRectItem *item_;
    QGraphicsSimpleTextItem *text_;
    int zone_ = 0;
};

RectItemPage::RectItemPage(QWidget *parent)
    : GalleryPage(parent)
    , stage_(new Stage(this))
{
    QVBoxLayout *section = addSection(
        tr("A rectangle in a view"),
        tr("Within the dashed zone a drag snaps to the corners and to the middle of the top and "
           "bottom edges; elsewhere the rectangle stays where it is left, inside of the border. "
           "With the focus in the view, the arrow keys move it from place to place."));
    stage_->setAccessibleName(tr("Snapping rectangle"));
    section->addWidget(stage_, 1);
    place_ = new QLabel(this);
    section->addWidget(place_);
    addControls();
    connect(stage_->scene(), &QGraphicsScene::changed, this, &RectItemPage::showPlace);
    applyNumbers();
    leaveWheelToScrolling();
}

void RectItemPage::addControls()
{
    QVBoxLayout *section = addSection(tr("Where it may snap"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    section->addLayout(grid);
    addPositions(grid);
    border_ = addNumber(grid, 0, tr("&Border"), 2);
    distance_ = addNumber(grid, 1, tr("Snapping &distance"), 30);
    auto *shown = new QCheckBox(tr("&Visible"), this);
    shown->setChecked(true);
    connect(shown, &QCheckBox::toggled, this,
            [this](bool visible) { stage_->item().setVisible(visible); });
    grid->addWidget(shown, 2, 0);
    grid->setColumnStretch(5, 1);
}

void RectItemPage::addPositions(QGridLayout *grid)
{
    for (size_t i = 0; i < places.size(); ++i) {
        auto *box = new QCheckBox(tr(places[i].name), this);
        box->setChecked(true);
        connect(box, &QCheckBox::toggled, this,
                [this, snap = places[i].snap](bool checked) { allow(snap, checked); });
        grid->addWidget(box, int(i) / 3, int(i) % 3);
    }
}

QSpinBox *RectItemPage::addNumber(QGridLayout *grid, int row, const QString &text, int value)
{
    auto *number = new QSpinBox(this);
    number->setRange(0, 200);
    number->setValue(value);
    auto *label = new QLabel(text, this);
    label->setBuddy(number);
    connect(number, &QSpinBox::valueChanged, this, &RectItemPage::applyNumbers);
    grid->addWidget(label, row, 3);
    grid->addWidget(number, row, 4);
    return number;
}

void RectItemPage::allow(int position, bool allowed)
{
    allowed_ = allowed ? allowed_ | position : allowed_ & ~position;
    stage_->item().setAllowedSnapping(allowed_);
}

void RectItemPage::applyNumbers()
{
    stage_->item().setBorder(border_->value());
    stage_->item().setSnappingDistance(distance_->value());
    stage_->item().confineToScene();
    stage_->setZone(border_->value() + distance_->value());
}

void RectItemPage::showPlace()
{
    const ZelGraphicsRectItem &item = stage_->item();
    QString name = tr("Free");
    for (const Place &place : places) {
        if (place.snap == item.getSnap())
            name = tr(place.name).remove(u'&');
    }
    const QLocale locale;
    place_->setText(tr("%1, at %2 x %3")
                        .arg(name, locale.toString(item.pos().x(), 'f', 0),
                             locale.toString(item.pos().y(), 'f', 0)));
    if (shownSnap_ != 0 && shownSnap_ != item.getSnap())
        log(tr("Snap position: %1").arg(name));
    shownSnap_ = item.getSnap();
}
