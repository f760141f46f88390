#include "GradientPage.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/ZelGradient>
#include <ZelWidgets/ZelGradientGgr>
#include <ZelWidgets/ZelGradientView>
#include <ZelWidgets/toDisplayQColor>

#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QGridLayout>
#include <QLabel>
#include <QLocale>
#include <QPixmap>
#include <QSignalBlocker>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

constexpr QSize swatchSize(72, 24);
constexpr int rowHeight = 16;
constexpr std::array rowWidths{2, 100, 4096};
constexpr int shownWidth = 420;
constexpr int mostFiles = 200;
constexpr qint64 mostBytes = 1 << 20;

ZelColor rgb(float red, float green, float blue)
{
    return {ZelColor::Space::RGB, red, green, blue};
}

void fillSunset(ZelGradient &gradient)
{
    gradient.clearStops();
    gradient.addColorStop(0.0F, rgb(0.02F, 0.03F, 0.12F));
    gradient.addColorStop(0.45F, rgb(0.55F, 0.1F, 0.25F));
    gradient.addColorStop(0.75F, rgb(0.95F, 0.45F, 0.1F), 1.5F);
    gradient.addColorStop(1.0F, rgb(1.0F, 0.9F, 0.55F), 2.0F);
    if (!gradient.hasAlpha())
        return;
    gradient.addAlphaStop(0.0F, 1.0F);
    gradient.addAlphaStop(0.6F, 0.8F);
    gradient.addAlphaStop(1.0F, 0.25F);
}

void fillBands(ZelGradient &gradient)
{
    gradient.clearStops();
    const std::array colors{rgb(0.8F, 0.1F, 0.1F), rgb(0.9F, 0.9F, 0.9F), rgb(0.1F, 0.3F, 0.7F)};
    for (std::size_t i = 0; i < colors.size(); ++i) {
        gradient.addColorStop(float(i) / 3.0F, colors[i]);
        gradient.addColorStop(float(i + 1) / 3.0F, colors[i]);
    }
}

void fillSmooth(ZelGradient &gradient)
{
    gradient.clearStops();
    for (const float location : {0.0F, 0.5F, 1.0F}) {
        const float grey = location == 0.5F ? 1.0F : 0.0F;
        ZelGradientStop stop = gradient.addColorStop(location, rgb(grey, grey, grey));
        stop.setSlopeIn(0.0F);
        stop.setSlopeOut(0.0F);
    }
}

QStringList installedGradients()
{
    QStringList files;
    for (const QString &data :
         QStandardPaths::standardLocations(QStandardPaths::GenericDataLocation)) {
        const QDir gimp(data + QStringLiteral("/gimp"));
        for (const QString &version : gimp.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
            const QDir folder(gimp.filePath(version) + QStringLiteral("/gradients"));
            const QFileInfoList found =
                folder.entryInfoList({QStringLiteral("*.ggr")}, QDir::Files, QDir::Name);
            for (const QFileInfo &file : found)
                files << file.absoluteFilePath();
        }
    }
    return files.mid(0, mostFiles);
}

} // namespace

GradientPage::GradientPage(QWidget *parent)
    : GalleryPage(parent)
    , gradient_(new ZelGradient(ZelGradient::Alpha | ZelGradient::Hdr))
{
    gradient_->setParent(this);
    fillSunset(*gradient_);
    addEditors();
    addAnswers();
    addVariants();
    addStretch();
    connect(gradient_, &ZelGradient::gradientChanged, this, &GradientPage::showAnswers);
    showAnswers();
}

GradientPage::~GradientPage() = default;

void GradientPage::addEditors()
{
    QVBoxLayout *section = addSection(
        tr("Two editors, one gradient"),
        tr("Drag the stops and, beside the selected one, its slopes; double click the bar for a "
           "new colour stop and a stop for its colour, drop colours on both. Tab walks the stops, "
           "Left and Right move them, Delete removes one; the context menu works on all."));
    auto *row = new QHBoxLayout;
    section->addLayout(row);
    row->addWidget(presetBox());
    auto *blend = new QCheckBox(tr("&Interpolate"), this);
    blend->setChecked(gradient_->blend());
    connect(blend, &QCheckBox::toggled, gradient_, &ZelGradient::setBlend);
    connect(gradient_, &ZelGradient::gradientChanged, blend,
            [this, blend] { blend->setChecked(gradient_->blend()); });
    row->addWidget(blend);
    row->addStretch();
    auto *editors = new QHBoxLayout;
    editors->setSpacing(24);
    section->addLayout(editors);
    for (const QString &name : {tr("First editor"), tr("Second editor")}) {
        auto *view = new ZelGradientView(nullptr);
        view->setAccessibleName(name);
        view->setGradient(gradient_);
        watch(view, &ZelGradientView::gradientChanged, QStringLiteral("gradientChanged"));
        editors->addWidget(view);
    }
}

QComboBox *GradientPage::presetBox()
{
    presets_ = new QComboBox(this);
    presets_->setAccessibleName(tr("Preset"));
    presets_->addItems({tr("Sunset"), tr("Bands"), tr("Smooth")});
    for (const QString &file : installedGradients())
        presets_->addItem(QFileInfo(file).completeBaseName(), file);
    connect(presets_, &QComboBox::activated, this, &GradientPage::choosePreset);
    return presets_;
}

void GradientPage::choosePreset(int index)
{
    const QString path = presets_->itemData(index).toString();
    if (path.isEmpty()) {
        const std::array fills{&fillSunset, &fillBands, &fillSmooth};
        fills.at(std::size_t(index))(*gradient_);
        return;
    }
    QFile file(path);
    QString error = tr("the file can't be read");
    if (!file.open(QIODevice::ReadOnly) ||
        !ZelGradientGgr::read(file.read(mostBytes), *gradient_, nullptr, &error)) {
        log(tr("%1: %2").arg(path, error));
        return;
    }
    // The files hold colours as they look on the display.
    for (int i = 0; i < gradient_->colorStops(); ++i) {
        ZelGradientStop stop = gradient_->colorStop(i);
        stop.setColor(ZelGammaPolicy::get()->inverseGammaCorrect(stop.color()));
    }
}

void GradientPage::addAnswers()
{
    QVBoxLayout *section = addSection(tr("The gradient at five places, and as a row of pixels"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(16);
    for (std::size_t i = 0; i < swatches_.size(); ++i) {
        const int column = int(i);
        grid->addWidget(new QLabel(tr("%1 %").arg(25 * column)), 0, column);
        swatches_[i] = new QLabel(this);
        numbers_[i] = new QLabel(this);
        grid->addWidget(swatches_[i], 1, column);
        grid->addWidget(numbers_[i], 2, column);
    }
    grid->setColumnStretch(int(swatches_.size()), 1);
    section->addLayout(grid);
    auto *rows = new QGridLayout;
    rows->setHorizontalSpacing(16);
    for (std::size_t i = 0; i < rows_.size(); ++i) {
        rows_[i] = new QLabel(this);
        rows_[i]->setFixedSize(shownWidth, rowHeight);
        rows_[i]->setScaledContents(true);
        const QString text = tr("%1 pixels").arg(rowWidths[i]);
        rows_[i]->setAccessibleName(text);
        rows->addWidget(new QLabel(text), int(i), 0);
        rows->addWidget(rows_[i], int(i), 1);
    }
    rows->setColumnStretch(2, 1);
    section->addLayout(rows);
}

void GradientPage::showAnswers()
{
    const QLocale locale;
    for (std::size_t i = 0; i < swatches_.size(); ++i) {
        const float place = float(i) / float(swatches_.size() - 1);
        const QColor color = toDisplayQColor(gradient_->computeColor(place));
        QPixmap pixmap(swatchSize);
        pixmap.fill(color);
        swatches_[i]->setPixmap(pixmap);
        const double opacity = double(gradient_->computeAlpha(place)) * 100;
        numbers_[i]->setText(tr("%1, %2 %").arg(color.name(), locale.toString(opacity, 'f', 0)));
    }
    for (std::size_t i = 0; i < rows_.size(); ++i)
        rows_[i]->setPixmap(QPixmap::fromImage(gradient_->paint(rowWidths[i])));
}

void GradientPage::addVariants()
{
    QVBoxLayout *section = addSection(tr("With and without opacity and brightness"));
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    const std::array<ZelGradient::Features, 4> variants{ZelGradient::Features(), ZelGradient::Alpha,
                                                        ZelGradient::Hdr,
                                                        ZelGradient::Alpha | ZelGradient::Hdr};
    const QStringList names{tr("Colours only"), tr("Opacity"), tr("Brightness"),
                            tr("Opacity and brightness")};
    for (std::size_t i = 0; i < variants.size(); ++i) {
        auto *gradient = new ZelGradient(variants[i]);
        gradient->setParent(this);
        fillSunset(*gradient);
        auto *view = new ZelGradientView(nullptr);
        view->setAccessibleName(names[qsizetype(i)]);
        view->setGradient(gradient);
        watch(view, &ZelGradientView::gradientChanged, QStringLiteral("gradientChanged"));
        const int row = int(i) / 2 * 2;
        const int column = int(i) % 2;
        grid->addWidget(new QLabel(names[qsizetype(i)]), row, column);
        grid->addWidget(view, row + 1, column, Qt::AlignTop);
    }
    section->addLayout(grid);
}
