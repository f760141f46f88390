#include "ColorWidgetsPage.h"

#include <ZelDeliveryManager/ZelFeatureFlags>
#include <ZelWidgets/ZelColorViewer>
#include <ZelWidgets/ZelColorWidget>
#include <ZelWidgets/ZelEyeDropper>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>
#include <ZelWidgets/toQColor>

#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLinearGradient>
#include <QPainter>

namespace {

constexpr QSize fieldSize(64, 24);
constexpr QSize testPictureSize(360, 96);
constexpr int pairsInRow = 3;
constexpr int columnGap = 40;

ZelColor hsv(float hue, float saturation, float value)
{
    return {ZelColor::Space::HSV, hue, saturation, value};
}

zelsg::Color several()
{
    zelsg::Color color(hsv(20, 0.8F, 0.9F));
    color.setColorName("Autumn");
    color.appendColor(hsv(45, 0.9F, 0.9F));
    color.appendColor(hsv(90, 0.6F, 0.5F));
    return color;
}

QLinearGradient hueGradient(const QRect &rect)
{
    QLinearGradient hues(rect.topLeft(), rect.topRight());
    for (int i = 0; i <= 6; ++i)
        hues.setColorAt(i / 6.0, QColor::fromHsv(i % 6 * 60, 255, 255));
    return hues;
}

QPixmap hues(QSize size)
{
    QPixmap picture(size);
    QPainter(&picture).fillRect(picture.rect(), hueGradient(picture.rect()));
    return picture;
}

/// Hues, greys, and lines one pixel wide, for which a loupe is needed.
class TestPicture : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        const int band = height() / 3;
        painter.fillRect(0, 0, width(), band, hueGradient(rect()));
        QLinearGradient greys(rect().topLeft(), rect().topRight());
        greys.setColorAt(0, Qt::black);
        greys.setColorAt(1, Qt::white);
        painter.fillRect(0, band, width(), band, greys);
        for (int x = 0; x < width(); ++x)
            painter.fillRect(x, 2 * band, 1, height() - 2 * band,
                             QColor::fromHsv(x * 47 % 360, x % 2 ? 255 : 90, 230));
    }
};

} // namespace

ColorWidgetsPage::ColorWidgetsPage(QWidget *parent)
    : GalleryPage(parent)
{
    orv::cdm::setFeatureOverride("multi_colors", true);
    addFields();
    addViewer();
    addDropper();
    addStretch();
}

void ColorWidgetsPage::addFields()
{
    QVBoxLayout *section = addSection(
        tr("Colour fields"), tr("A click, Space or Return opens the colour dialog. Drag a colour "
                                "from field to field, to "
                                "the swatches of a dialog, or to and from another program."));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(10);
    section->addLayout(grid);
    const auto field = [this](const zelsg::Color &color) {
        return new ZelColorWidget(color, fieldSize, true, this);
    };
    addRow(grid, tr("Plain"), field(hsv(205, 0.7F, 0.8F)));
    auto *alpha = field({});
    alpha->setColor(QColor(220, 60, 90, 110), true);
    addRow(grid, tr("With alpha"), alpha);
    auto *list = field(several());
    list->enableMakeMultiColor();
    addRow(grid, tr("Several colours"), list);
    auto *light = field(ZelColor(ZelColor::Space::RGB, 1, 0.85F, 0.6F));
    light->showKelvin();
    light->setTitle(tr("Light"));
    addRow(grid, tr("Temperature first"), light);
    auto *library = field(hsv(120, 0.5F, 0.6F));
    library->includeSaveToLibraryButton();
    library->enableMakeMultiColor();
    addRow(grid, tr("With library"), library);
    auto *modal = field(hsv(280, 0.5F, 0.7F));
    modal->setShowModal(true);
    connect(modal, &ZelColorWidget::clicked, modal, &ZelColorWidget::showColorDialog,
            Qt::QueuedConnection);
    addRow(grid, tr("Modal"), modal);
    auto *picture = field(hsv(0, 0, 0.5F));
    picture->setPixmap(hues(fieldSize));
    addRow(grid, tr("A picture"), picture);
    addRow(grid, tr("Without dialog"),
           new ZelColorWidget(hsv(60, 0.8F, 0.9F), fieldSize, false, this));
    auto *disabled = field(hsv(205, 0.7F, 0.8F));
    disabled->setEnabled(false);
    addRow(grid, tr("Disabled"), disabled);
    grid->setColumnStretch(3 * pairsInRow, 1);
}

void ColorWidgetsPage::addRow(QGridLayout *grid, const QString &text, ZelColorWidget *field)
{
    const int index = grid->count() / 2;
    const int row = index / pairsInRow;
    const int column = index % pairsInRow * 3;
    auto *label = new QLabel(text, this);
    label->setBuddy(field);
    label->setEnabled(field->isEnabled());
    field->setAccessibleName(text);
    grid->addWidget(label, row, column);
    grid->addWidget(field, row, column + 1);
    grid->setColumnMinimumWidth(column + 2, columnGap);

    const auto told = [this, text](const QString &signal) {
        return [this, name = text + QStringLiteral(": ") + signal](const ZelColor &color) {
            logColor(name, color);
        };
    };
    connect(field, &ZelColorWidget::clicked, this, told(QStringLiteral("clicked")));
    connect(field, &ZelColorWidget::doubleClicked, this, told(QStringLiteral("doubleClicked")));
    connect(field, &ZelColorWidget::colorUpdated, this,
            [tell = told(QStringLiteral("colorUpdated"))](const zelsg::Color &color) {
                tell(color.getActive());
            });
    connect(field, &ZelColorWidget::saveColorToLibrary, this,
            [tell = told(QStringLiteral("saveColorToLibrary"))](const zelsg::Color &color) {
                tell(color.getActive());
            });
    connect(field, &ZelColorWidget::editingFinished, this,
            [this, text] { log(text + QStringLiteral(": editingFinished()")); });
}

void ColorWidgetsPage::addViewer()
{
    QVBoxLayout *section = addSection(
        tr("Old and new"),
        tr("A click takes one of them back; the menu copies the numbers as text. Drop a colour of "
           "above on the new one."));
    auto *viewer = new ZelColorViewer(hsv(205, 0.7F, 0.8F), this);
    viewer->setColor(hsv(25, 0.85F, 0.95F));
    section->addWidget(viewer);
    connect(viewer, &ZelColorViewer::colorSelected, this, [this, viewer](const ZelColor &color) {
        viewer->setColor(color);
        logColor(QStringLiteral("ZelColorViewer: colorSelected"), color);
    });
    connect(viewer, &ZelColorViewer::doubleClick, this, [this](const ZelColor &color) {
        logColor(QStringLiteral("ZelColorViewer: doubleClick"), color);
    });
}

void ColorWidgetsPage::addDropper()
{
    QVBoxLayout *section = addSection(
        tr("From the screen"),
        tr("The loupe follows the cursor over all screens. The arrow keys go by a pixel, with "
           "Shift "
           "by ten; the left button, Space or Return takes the colour, Escape cancels."));
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    section->addLayout(row);
    auto *button = new ZelToolButton(ZelToolButton::Border, this);
    button->setIcon(ZelStyleIcon(QStringLiteral(":ui/icons/eyedropper")));
    QString reason;
    button->setEnabled(ZelEyeDropper::isAvailable(&reason));
    button->setToolTip(reason.isEmpty() ? tr("Pick a color") : reason);
    button->setAccessibleName(tr("Pick a color"));
    row->addWidget(button);
    auto *field = new ZelColorWidget(ZelColor(), fieldSize, true, this);
    field->setAccessibleName(tr("Picked colour"));
    row->addWidget(field);
    auto *picture = new TestPicture(this);
    picture->setFixedSize(testPictureSize);
    picture->setAccessibleName(tr("Test picture"));
    row->addWidget(picture);
    row->addStretch();
    connect(button, &QToolButton::clicked, this, [this, field] { pick(field); });
}

void ColorWidgetsPage::pick(ZelColorWidget *field)
{
    auto *dropper = new ZelEyeDropper(this);
    dropper->setAttribute(Qt::WA_DeleteOnClose);
    connect(dropper, &ZelEyeDropper::colorSelected, field, [this, field](const ZelColor &color) {
        field->setActiveColor(color);
        logColor(QStringLiteral("ZelEyeDropper: colorSelected"), color);
    });
    connect(dropper, &QDialog::rejected, this,
            [this] { log(QStringLiteral("ZelEyeDropper: rejected()")); });
    dropper->open();
}

void ColorWidgetsPage::logColor(const QString &signal, const ZelColor &color)
{
    log(signal + u'(' + toQColor(color).name() + u')');
}
