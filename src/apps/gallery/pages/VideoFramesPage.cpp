#include "VideoFramesPage.h"

#include <ZelWidgets/ExtractFramesFromVideoDlg>
#include <ZelWidgets/ZelLabel>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelPixmapLabel>
#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QCoreApplication>
#include <QDir>
#include <QEventLoop>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QProcess>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QVBoxLayout>

namespace {

constexpr QSize pictureSize{256, 144};

QString program()
{
    QString path = QCoreApplication::applicationDirPath() + QStringLiteral("/ffmpeg");
#ifdef Q_OS_WIN
    path += QStringLiteral(".exe");
#endif
    return path;
}

} // namespace

VideoFramesPage::VideoFramesPage(QWidget *parent)
    : GalleryPage(parent)
{
    addSource();
    addExtraction();
    addStretch();
}

VideoFramesPage::~VideoFramesPage() = default;

void VideoFramesPage::addSource()
{
    QVBoxLayout *section = addSection(
        tr("Video"), tr("Any video file. With none chosen, the page makes a clip of test pictures; "
                        "a long one leaves time to cancel its extraction."));
    path_ = new ZelLineEdit(this);
    path_->setStyleablePlaceholderText(tr("A clip of test pictures"));
    path_->setAccessibleName(tr("Video file"));
    path_->setMinimalTextWidth(40);
    auto *browse = new ZelToolButton(ZelToolButton::Border, this);
    browse->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/folder.svg")));
    browse->setToolTip(tr("Choose a video"));
    browse->setFocusPolicy(Qt::StrongFocus);
    connect(browse, &QToolButton::clicked, this, &VideoFramesPage::browse);
    seconds_ = new QSpinBox(this);
    seconds_->setRange(1, 120);
    seconds_->setValue(4);
    seconds_->setSuffix(tr(" s"));
    seconds_->setAccessibleName(tr("Length of the test clip"));

    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(path_);
    row->addWidget(browse);
    row->addStretch(1);
    auto *form = new QFormLayout;
    form->addRow(tr("File:"), row);
    seconds_->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    form->addRow(tr("Test clip:"), seconds_);
    section->addLayout(form);
}

void VideoFramesPage::addExtraction()
{
    QVBoxLayout *section =
        addSection(tr("Frames"), tr("The work is done by the program \"ffmpeg\" that lies beside "
                                    "the application."));
    extract_ = new ZelPushButton(tr("E&xtract frames..."), this);
    connect(extract_, &QPushButton::clicked, this, &VideoFramesPage::extract);
    auto *row = new QHBoxLayout;
    row->addWidget(extract_);
    row->addStretch(1);
    section->addLayout(row);

    first_ = new ZelPixmapLabel(pictureSize);
    first_->setAccessibleName(tr("First frame"));
    section->addWidget(first_, 0, Qt::AlignLeft);
    result_ = new ZelLabel(this);
    result_->setTextFormat(Qt::PlainText);
    result_->setElideMode(true);
    section->addWidget(result_);

    const bool canExtract = QFileInfo(program()).isExecutable();
    extract_->setEnabled(canExtract);
    result_->setText(canExtract ? tr("No frames yet.")
                                : tr("There is no \"ffmpeg\" beside the application."));
}

void VideoFramesPage::browse()
{
    const QString path =
        QFileDialog::getOpenFileName(this, tr("Choose a video"), path_->text(),
                                     tr("Videos (*.mp4 *.mkv *.mov *.avi *.webm *.gif);;All (*)"));
    if (!path.isEmpty())
        path_->setText(path);
}

void VideoFramesPage::extract()
{
    const QString path = video();
    if (path.isEmpty()) {
        result_->setText(tr("No test clip could be made."));
        return;
    }
    const VideoInformation frames = ExtractFramesFromVideoDlg::getExtractedFiles(path, this);
    log(tr("extracted: %1 frames, first file \"%2\"")
            .arg(frames.frameCount)
            .arg(QFileInfo(frames.firstFile).fileName()));
    if (frames.frameCount > 0)
        show(frames);
    else
        showLeftOvers(path);
}

QString VideoFramesPage::video()
{
    return path_->text().isEmpty() ? makeClip() : path_->text();
}

QString VideoFramesPage::makeClip()
{
    if (!folder_)
        folder_ = std::make_unique<QTemporaryDir>();
    const QString path = folder_->filePath(QStringLiteral("clip.mp4"));
    const QString source =
        QStringLiteral("testsrc=size=640x360:rate=25:duration=%1").arg(seconds_->value());

    QProcess process;
    QEventLoop loop;
    connect(&process, &QProcess::finished, &loop, &QEventLoop::quit);
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    process.setStandardErrorFile(QProcess::nullDevice());
    process.start(program(), {QStringLiteral("-y"), QStringLiteral("-f"), QStringLiteral("lavfi"),
                              QStringLiteral("-i"), source, QStringLiteral("-c:v"),
                              QStringLiteral("mpeg4"), path});
    if (!process.waitForStarted())
        return {};
    if (process.state() != QProcess::NotRunning)
        loop.exec(QEventLoop::ExcludeUserInputEvents);
    return process.exitCode() == 0 ? path : QString();
}

void VideoFramesPage::show(const VideoInformation &frames)
{
    first_->setPixmap(QPixmap(frames.firstFile));
    result_->setText(tr("%1 frames, beginning with %2")
                         .arg(frames.frameCount)
                         .arg(QDir::toNativeSeparators(frames.firstFile)));
}

void VideoFramesPage::showLeftOvers(const QString &video)
{
    const QFileInfo file(video);
    const QString names = file.baseName() + QStringLiteral("*.");
    const QStringList left = file.dir().entryList(
        {names + QStringLiteral("png"), names + QStringLiteral("jpeg")}, QDir::Files);
    first_->clear();
    result_->setText(
        tr("Nothing was taken over. Picture files beside the video: %1").arg(left.size()));
}
