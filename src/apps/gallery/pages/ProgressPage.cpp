#include "ProgressPage.h"

#include "SectionRow.h"

#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelProgressDialog>
#include <ZelWidgets/ZelProgressObserverDialog>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelSplashWindow>

#include <QCheckBox>
#include <QHBoxLayout>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QScopedValueRollback>
#include <QSpinBox>
#include <QVBoxLayout>

#include <complex>

namespace {

constexpr int stepMs = 40;
constexpr int stepCount = 75;
constexpr int closingMs = 1000;
constexpr int stepsOfPart = 25;
constexpr int splashStepMs = 30;
constexpr int splashSteps = 100;
constexpr QSize pictureSize(320, 180);
constexpr int depth = 8000;

// How fast the point leaves the Mandelbrot set, as a colour.
QRgb colorAt(int x, int y)
{
    const std::complex<double> c(-2.2 + 3.2 * x / pictureSize.width(),
                                 -0.9 + 1.8 * y / pictureSize.height());
    std::complex<double> z;
    int i = 0;
    while (i < depth && std::norm(z) <= 4) {
        z = z * z + c;
        ++i;
    }
    return i == depth ? qRgb(20, 24, 32) : QColor::fromHsv((200 + 7 * i) % 360, 150, 225).rgb();
}

} // namespace

ProgressPage::ProgressPage(QWidget *parent)
    : GalleryPage(parent)
{
    addDialogs();
    addObserver();
    addSplash();
    addStretch();
    workTimer_.setInterval(stepMs);
    connect(&workTimer_, &QTimer::timeout, this, &ProgressPage::work);
    splashTimer_.setInterval(splashStepMs);
    connect(&splashTimer_, &QTimer::timeout, this, &ProgressPage::advanceSplash);
    leaveWheelToScrolling();
}

QAbstractButton *ProgressPage::createButton(const QString &text,
                                            const std::function<void()> &action)
{
    auto *button = new ZelPushButton(text, this);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void ProgressPage::addDialogs()
{
    QVBoxLayout *section = addSection(
        tr("Progress dialogs"),
        tr("Three seconds of work. Without a cancel button neither Escape nor the close box ends "
           "it; with one they ask for a cancel."));
    QHBoxLayout *row = addRow(section);
    canCancel_ = new QCheckBox(tr("Cancel b&utton"), this);
    canCancel_->setChecked(true);
    closesItself_ = new QCheckBox(tr("Closes it&self at the end"), this);
    closesItself_->setChecked(true);
    minimumDuration_ = new QSpinBox(this);
    minimumDuration_->setRange(-1, 5000);
    minimumDuration_->setSingleStep(500);
    minimumDuration_->setValue(-1);
    minimumDuration_->setSpecialValueText(tr("At once"));
    minimumDuration_->setSuffix(tr(" ms"));
    auto *label = new QLabel(tr("Shown af&ter"), this);
    label->setBuddy(minimumDuration_);
    row->addWidget(canCancel_);
    row->addWidget(closesItself_);
    row->addSpacing(12);
    row->addWidget(label);
    row->addWidget(minimumDuration_);
    row->addStretch(1);
    row = addRow(section);
    row->addWidget(createButton(tr("&One bar"), [this] { startWork(false); }));
    row->addWidget(createButton(tr("T&wo bars"), [this] { startWork(true); }));
    row->addStretch(1);
}

void ProgressPage::startWork(bool hasTwoBars)
{
    if (dialog_)
        return;
    dialog_ = new ZelProgressDialog(tr("Rendering the turntable"), this);
    dialog_->setAutoClose(closesItself_->isChecked());
    dialog_->setCancelVisible(canCancel_->isChecked());
    dialog_->setShowSecond(hasTwoBars);
    dialog_->setRange(0, stepCount);
    dialog_->setRangeSecond(0, stepsOfPart);
    dialog_->setMinimumDuration(minimumDuration_->value());
    watch(dialog_.data(), &ZelProgressDialog::cancelRequested, QStringLiteral("cancelRequested"));
    connect(dialog_, &ZelProgressDialog::cancelRequested, this,
            [this] { endWork(tr("cancelled")); });
    if (minimumDuration_->value() < 0)
        dialog_->show();
    step_ = 0;
    work();
    workTimer_.start();
}

void ProgressPage::work()
{
    if (!dialog_)
        return;
    if (step_ % stepsOfPart == 0 && step_ < stepCount)
        dialog_->setText(tr("Rendering view %1 of %2")
                             .arg(step_ / stepsOfPart + 1)
                             .arg(stepCount / stepsOfPart));
    dialog_->setValueSecond(step_ % stepsOfPart + 1);
    dialog_->setValue(step_);
    if (step_++ == stepCount)
        endWork(tr("done"));
}

void ProgressPage::endWork(const QString &result)
{
    workTimer_.stop();
    log(tr("work: %1 after %2 of %3 steps").arg(result).arg(step_ - 1).arg(stepCount));
    if (!dialog_)
        return;
    connect(dialog_, &QDialog::finished, dialog_, &QObject::deleteLater);
    if (dialog_->isVisible() && step_ > stepCount) {
        dialog_->setText(tr("Done; the dialog is closed in a second"));
        QTimer::singleShot(closingMs, dialog_, &QWidget::close);
    } else {
        dialog_->close();
        dialog_->deleteLater();
    }
    dialog_.clear();
}

void ProgressPage::addObserver()
{
    QVBoxLayout *section =
        addSection(tr("Progress observer"),
                   tr("A picture is computed line by line on the GUI thread, which tells its "
                      "observer; without cancel user input waits until it is done."));
    QHBoxLayout *row = addRow(section);
    auto *controls = new QVBoxLayout;
    observerCanCancel_ = new QCheckBox(tr("With c&ancel"), this);
    observerCanCancel_->setChecked(true);
    compute_ = createButton(tr("&Compute the picture"), [this] { computePicture(); });
    controls->addWidget(observerCanCancel_);
    controls->addWidget(compute_);
    controls->addStretch(1);
    picture_ = new QLabel(tr("Not computed yet"), this);
    picture_->setAlignment(Qt::AlignCenter);
    picture_->setFrameShape(QFrame::StyledPanel);
    picture_->setFixedSize(pictureSize + QSize(4, 4));
    picture_->setAccessibleName(tr("Computed picture"));
    row->addLayout(controls);
    row->addSpacing(16);
    row->addWidget(picture_);
    row->addStretch(1);
}

void ProgressPage::computePicture()
{
    // The observer lets the event loop run.
    compute_->setEnabled(false);
    const auto enable = qScopeGuard([this] { compute_->setEnabled(true); });
    ZelProgressObserverDialog dialog(this, QString(), !observerCanCancel_->isChecked(), true);
    IProgressObserver *observer = &dialog;
    observer->open(tr("Fractal"));
    observer->setText(tr("Computing %1 lines").arg(pictureSize.height()));
    QImage image(pictureSize, QImage::Format_RGB32);
    image.fill(Qt::black);
    for (int y = 0; y < image.height(); ++y) {
        auto *line = reinterpret_cast<QRgb *>(image.scanLine(y));
        for (int x = 0; x < image.width(); ++x)
            line[x] = colorAt(x, y);
        if (!observer->progress(100 * (y + 1) / image.height()))
            break;
    }
    observer->close();
    picture_->setPixmap(QPixmap::fromImage(image));
    log(observer->cancelled() ? tr("fractal: cancelled") : tr("fractal: done"));
}

void ProgressPage::addSplash()
{
    QVBoxLayout *section =
        addSection(tr("Splash window"),
                   tr("The start of the application once more, in three seconds. The window is "
                      "modal and stays for a second at least."));
    QHBoxLayout *row = addRow(section);
    splashType_ = new ZelComboBox(this);
    splashType_->addItem(tr("Built-in picture"), int(ZelSplashWindow::BuiltIn));
    splashType_->addItem(tr("Own picture"), int(ZelSplashWindow::OwnPicture));
    splashType_->addItem(tr("Plain ground"), -1);
    auto *typeLabel = new QLabel(tr("&Picture"), this);
    typeLabel->setBuddy(splashType_);
    splashLabel_ = new QCheckBox(tr("&Label of an early version"), this);
    row->addWidget(typeLabel);
    row->addWidget(splashType_);
    row->addSpacing(12);
    row->addWidget(splashLabel_);
    row->addStretch(1);
    row = addRow(section);
    legalLine_ = new ZelLineEdit(this);
    legalLine_->setText(tr("\u00a9 %1 The gallery's makers. All rights reserved."));
    auto *legalLabel = new QLabel(tr("L&egal line (%1 is the year)"), this);
    legalLabel->setBuddy(legalLine_);
    row->addWidget(legalLabel);
    row->addWidget(legalLine_, 1);
    row = addRow(section);
    row->addWidget(createButton(tr("&Replay"), [this] { replaySplash(); }));
    row->addStretch(1);
}

QPixmap ProgressPage::ownPicture() const
{
    const qreal ratio = devicePixelRatio();
    QPixmap pixmap(QSize(600, 400) * ratio);
    pixmap.setDevicePixelRatio(ratio);
    QPainter painter(&pixmap);
    QLinearGradient ground(0, 0, 600, 400);
    ground.setColorAt(0, QColor(58, 32, 64));
    ground.setColorAt(1, QColor(24, 60, 72));
    painter.fillRect(QRect(0, 0, 600, 400), ground);
    return pixmap;
}

void ProgressPage::replaySplash()
{
    if (splash_)
        return;
    const int type = splashType_->currentData().toInt();
    const bool isOwn = type == ZelSplashWindow::OwnPicture;
    splash_ =
        new ZelSplashWindow(ZelSplashWindow::SplashType(type), QPoint(), this,
                            splashLabel_->isChecked(), isOwn ? ownPicture() : QPixmap(), QPoint());
    splash_->setLegalLine(legalLine_->text());
    splashStep_ = 0;
    splashTimer_.start();
}

void ProgressPage::advanceSplash()
{
    static const QStringList states{tr("Reading the settings..."), tr("Loading materials..."),
                                    tr("Loading environments..."), tr("Opening the workspace...")};
    ZelAbstractProgressBar *bar = splash_.data();
    if (!bar || !splash_->isVisible() || ++splashStep_ > splashSteps) {
        splashTimer_.stop();
        log(tr("splash: closed"));
        if (bar)
            bar->close_window();
        return;
    }
    bar->setStatus(states[std::min<int>(4 * splashStep_ / splashSteps, 3)]);
    bar->setProgress(float(splashStep_) / splashSteps);
}
