#include "ExtractFramesFromVideoDlg.h"

#include "PrivateVideoInformation.h"
#include "ZelFrameExtraction.h"
#include "ZelFrameFiles.h"
#include "ZelVideoReport.h"

#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelToolButton>

#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QGuiApplication>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QVBoxLayout>

class ExtractFramesFromVideoDlgPrivate
{
public:
    QLayout *createFields(QWidget *parent);

    PrivateVideoInformation information;
    VideoInformation result;
    std::shared_ptr<ZelFrameExtraction> extraction; ///< while frames are being written
    ZelComboBox *format = nullptr;
    ZelLineEdit *folder = nullptr;
    ZelToolButton *browse = nullptr;
    QPushButton *ok = nullptr;
    QProgressBar *progress = nullptr;
    bool isExporting = false;
    bool isRejected = false;
};

namespace {

constexpr int startSlack = 200; // milliseconds
constexpr int listedNames = 10;
constexpr int folderWidth = 40; // characters
constexpr int nameWidth = 60;   // characters

/// A message box that survives its parent and takes file names literally.
QMessageBox::StandardButton ask(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                const QString &text, QMessageBox::StandardButtons buttons)
{
    const QPointer<QMessageBox> box(new QMessageBox(icon, title, QString(), buttons, parent));
    box->setTextFormat(Qt::PlainText);
    box->setText(text);
    const int answer = box->exec();
    delete box;
    return QMessageBox::StandardButton(answer);
}

void complain(QWidget *parent, const QString &title, const QString &text)
{
    ask(parent, QMessageBox::Critical, title, text, QMessageBox::Ok);
}

constexpr QMessageBox::StandardButtons yesOrNo = QMessageBox::Yes | QMessageBox::No;

class WaitCursor
{
public:
    WaitCursor() { QGuiApplication::setOverrideCursor(Qt::WaitCursor); }
    ~WaitCursor() { QGuiApplication::restoreOverrideCursor(); }
    WaitCursor(const WaitCursor &) = delete;
    WaitCursor &operator=(const WaitCursor &) = delete;
};

/// Gives the process its current folder back.
class CurrentFolderGuard
{
public:
    explicit CurrentFolderGuard(const QString &folder)
        : folder_(folder)
    {}
    ~CurrentFolderGuard() { QDir::setCurrent(folder_); }
    CurrentFolderGuard(const CurrentFolderGuard &) = delete;
    CurrentFolderGuard &operator=(const CurrentFolderGuard &) = delete;

private:
    QString folder_;
};

} // namespace

QLayout *ExtractFramesFromVideoDlgPrivate::createFields(QWidget *parent)
{
    using Dialog = ExtractFramesFromVideoDlg;
    format = new ZelComboBox(parent);
    format->addItems({QStringLiteral("PNG"), QStringLiteral("JPEG")});
    format->setAccessibleName(Dialog::tr("Output Format"));
    information.format = format->currentText().toLower();
    folder = new ZelLineEdit(information.outputFolder, parent);
    folder->setMinimalTextWidth(folderWidth);
    folder->setAccessibleName(Dialog::tr("Output Folder"));
    browse = new ZelToolButton(ZelToolButton::Border, parent);
    browse->setIcon(ZelStyleIcon(QStringLiteral(":ui/icons/folder")));
    browse->setToolTip(Dialog::tr("Select output folder"));
    browse->setFocusPolicy(Qt::StrongFocus);

    auto *folderRow = new QHBoxLayout;
    folderRow->addWidget(folder, 1);
    folderRow->addWidget(browse);
    auto *form = new QFormLayout;
    form->addRow(Dialog::tr("Output Format:"), format);
    form->addRow(Dialog::tr("Output Folder:"), folderRow);
    return form;
}

ExtractFramesFromVideoDlg::ExtractFramesFromVideoDlg(const QString &videoPath, QWidget *parent)
    : QDialog(parent)
    , d_(std::make_unique<ExtractFramesFromVideoDlgPrivate>())
{
    d_->information.videoPath = videoPath;
}

ExtractFramesFromVideoDlg::~ExtractFramesFromVideoDlg()
{
    if (d_->extraction)
        d_->extraction->cancel();
}

VideoInformation ExtractFramesFromVideoDlg::getExtractedFiles(const QString &videoPath,
                                                              QWidget *parent)
{
    const QPointer<QWidget> owner(parent);
    PrivateVideoInformation information;
    const bool isVideo = getVideoInformation(videoPath, information);
    if (parent && !owner)
        return {};
    if (!isVideo) {
        complain(parent, tr("Video Error"), tr("Failed to extract video information."));
        return {};
    }
    const QPointer<ExtractFramesFromVideoDlg> dialog(
        new ExtractFramesFromVideoDlg(information.videoPath, parent));
    dialog->d_->information = information;
    dialog->setupUi();
    VideoInformation result;
    if (dialog->exec() == QDialog::Accepted && dialog)
        result = dialog->d_->result;
    delete dialog;
    return result;
}

bool ExtractFramesFromVideoDlg::getVideoInformation(const QString &videoPath,
                                                    PrivateVideoInformation &information)
{
    if (videoPath.isEmpty())
        return false;
    const WaitCursor cursor;
    // The program runs in another folder than this one later.
    const QFileInfo video(videoPath);
    QByteArray text;
    ZelFrameExtraction program(ZelFrameExtraction::programPath());
    if (program.readReport(video.absoluteFilePath(), text) != ZelFrameExtraction::Result::Ended)
        return false;
    const ZelVideoReport report = ZelVideoReport::parse(text);
    if (!report.isVideo())
        return false;
    information.videoPath = video.absoluteFilePath();
    information.outputFolder = video.absolutePath();
    information.durationText = report.durationText;
    information.resolutionText =
        QStringLiteral("%1x%2").arg(report.resolution.width()).arg(report.resolution.height());
    information.frameCount = report.frameCount();
    return true;
}

void ExtractFramesFromVideoDlg::setupUi()
{
    setWindowTitle(tr("Extract Video Frames"));
    const PrivateVideoInformation &information = d_->information;
    auto *summary = new QLabel(tr("Video Resolution: %1 / Duration: %2 / Frames: %3")
                                   .arg(information.resolutionText, information.durationText,
                                        QString::number(information.frameCount)),
                               this);
    QLayout *fields = d_->createFields(this);
    d_->progress = new QProgressBar(this);
    // An upper bound of 0 would show a bar that is always busy.
    d_->progress->setRange(0, std::max(information.frameCount, 1));
    d_->progress->setValue(0);
    d_->progress->setAccessibleName(tr("Written frames"));
    auto *buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    d_->ok = buttons->button(QDialogButtonBox::Ok);

    auto *layout = new QVBoxLayout(this);
    layout->addWidget(summary);
    layout->addLayout(fields);
    layout->addWidget(d_->progress);
    layout->addWidget(buttons);

    connect(d_->browse, &QToolButton::clicked, this, &ExtractFramesFromVideoDlg::slotBrowse);
    connect(d_->folder, &QLineEdit::textChanged, this,
            &ExtractFramesFromVideoDlg::slotEnableDisableOk);
    connect(d_->format, &QComboBox::currentTextChanged, this,
            [this](const QString &format) { d_->information.format = format.toLower(); });
    connect(buttons, &QDialogButtonBox::accepted, this, &ExtractFramesFromVideoDlg::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &ExtractFramesFromVideoDlg::reject);
    slotEnableDisableOk();
}

void ExtractFramesFromVideoDlg::slotBrowse()
{
    const QPointer<QLineEdit> field(d_->folder);
    const QString folder =
        QFileDialog::getExistingDirectory(this, tr("Select output folder"), field->text());
    if (field && !folder.isEmpty())
        field->setText(folder);
}

void ExtractFramesFromVideoDlg::slotEnableDisableOk()
{
    d_->ok->setEnabled(!d_->isExporting && !d_->folder->text().isEmpty());
}

void ExtractFramesFromVideoDlg::setInputEnabled(bool enabled)
{
    d_->isExporting = !enabled;
    d_->format->setEnabled(enabled);
    d_->folder->setEnabled(enabled);
    d_->browse->setEnabled(enabled);
    slotEnableDisableOk();
}

void ExtractFramesFromVideoDlg::accept()
{
    if (d_->isExporting)
        return;
    const QDateTime startTime = QDateTime::currentDateTime().addMSecs(-startSlack);
    setInputEnabled(false);
    PrivateVideoInformation &information = d_->information;
    information.outputFolder =
        QDir::current().absoluteFilePath(ZelFrameFiles::folderFromText(d_->folder->text()));
    const QString baseName = ZelFrameFiles::baseNameFor(information.videoPath);

    const QPointer<ExtractFramesFromVideoDlg> self(this);
    d_->isRejected = false;
    const bool isWanted =
        acceptPossibleOverwrite(information.outputFolder, baseName) && self && !d_->isRejected;
    const bool isDone = isWanted && exportTo(information.outputFolder, baseName, startTime);
    if (!self)
        return;
    if (isDone && !d_->isRejected)
        QDialog::accept();
    else
        setInputEnabled(true);
}

bool ExtractFramesFromVideoDlg::exportTo(const QString &folder, const QString &baseName,
                                         const QDateTime &startTime)
{
    d_->information.currentFolder = QDir::currentPath();
    const CurrentFolderGuard guard(d_->information.currentFolder);
    const QPointer<ExtractFramesFromVideoDlg> self(this);
    bool isDone = false;
    if (QDir::setCurrent(folder)) {
        const ZelFrameFiles files(folder, baseName, d_->information.format);
        isDone =
            extractFrames(files.pattern()) && verifySaneExport(startTime, folder, baseName) && self;
    } else {
        complain(this, tr("Error"), tr("Failed to write in the selected directory."));
    }
    if (!isDone && self)
        d_->progress->setValue(0);
    return isDone;
}

bool ExtractFramesFromVideoDlg::acceptPossibleOverwrite(const QString &folder,
                                                        const QString &baseName)
{
    const ZelFrameFiles files(folder, baseName, d_->information.format);
    const QStringList names = files.existing();
    if (names.isEmpty())
        return true;
    QStringList lines{tr("The following image files will be overwritten:")};
    const int width = fontMetrics().averageCharWidth() * nameWidth;
    for (const QString &name : names.mid(0, listedNames))
        lines.append(fontMetrics().elidedText(name, Qt::ElideMiddle, width));
    if (names.size() > listedNames)
        lines.append(tr("(and more ...)"));
    lines.append(tr("Continue?"));
    return ask(this, QMessageBox::Question, tr("Overwrite existing files?"), lines.join(u'\n'),
               yesOrNo) == QMessageBox::Yes;
}

bool ExtractFramesFromVideoDlg::extractFrames(const QString &outputPattern)
{
    using Result = ZelFrameExtraction::Result;
    const QPointer<ExtractFramesFromVideoDlg> self(this);
    // The dialog may go while its events are served here.
    const auto extraction = std::make_shared<ZelFrameExtraction>(ZelFrameExtraction::programPath());
    d_->extraction = extraction;
    const Result result = extraction->extract(
        d_->information.videoPath, outputPattern,
        [self](int frame) {
            if (self)
                self->showFrame(frame);
        },
        [self] {
            return self &&
                   ask(self, QMessageBox::Warning, tr("Error while exporting"),
                       tr("Failed to extract images.") + u'\n' + tr("Do you want to continue?"),
                       yesOrNo) == QMessageBox::Yes;
        });
    if (!self)
        return false;
    d_->extraction.reset();
    if (result == Result::NotStarted)
        complain(this, tr("Error in video extract"), tr("Could not startup process"));
    if (result != Result::Ended)
        return false;
    d_->progress->setValue(d_->progress->maximum());
    return true;
}

void ExtractFramesFromVideoDlg::showFrame(int frame)
{
    const int value = std::min(frame, d_->progress->maximum());
    if (value > d_->progress->value())
        d_->progress->setValue(value);
}

bool ExtractFramesFromVideoDlg::verifySaneExport(const QDateTime &startTime, const QString &folder,
                                                 const QString &baseName)
{
    const int expected = d_->information.frameCount;
    const ZelFrameFiles files(folder, baseName, d_->information.format);
    const ZelFrameFiles::Written written = files.writtenSince(startTime, expected);
    if (written.all == 0) {
        complain(this, tr("Video extract failed"), tr("Could not extract images to the folder"));
        return false;
    }
    d_->result = {written.first, written.all};
    if (written.expected >= expected)
        return true;
    return ask(this, QMessageBox::Question, tr("Frames missing"),
               tr("%1 of %2 frames were exported.\nContinue?").arg(written.expected).arg(expected),
               yesOrNo) == QMessageBox::Yes;
}

void ExtractFramesFromVideoDlg::reject()
{
    d_->isRejected = true;
    if (d_->extraction)
        d_->extraction->cancel();
    QDialog::reject();
}
