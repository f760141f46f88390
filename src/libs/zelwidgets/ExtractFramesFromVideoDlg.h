#pragma once

#include <ZelWidgets/VideoInformation>
#include <ZelWidgets/zelwidgets_export.h>

#include <QDateTime>
#include <QDialog>

#include <memory>

class ExtractFramesFromVideoDlgPrivate;
struct PrivateVideoInformation;

/// Turns a video into numbered image files, for use as an image sequence.
///
///     const VideoInformation frames = ExtractFramesFromVideoDlg::getExtractedFiles(path, this);
///     if (frames.frameCount > 0)
///         openSequence(frames.firstFile, frames.frameCount);
///
/// The work is done by the external program "ffmpeg" in the folder of the application. While it
/// writes, the process's current folder is the output folder, the dialog shows how far it is, and
/// Escape or closing the dialog ends it; what was written by then stays. On the GUI thread only.
class ZELWIDGETS_EXPORT ExtractFramesFromVideoDlg : public QDialog
{
    Q_OBJECT

public:
    ~ExtractFramesFromVideoDlg() override;

    /// Asks for format and folder and writes the frames. The result is empty if the user gave up,
    /// or if the file can't be read as a video, which a message box tells.
    static VideoInformation getExtractedFiles(const QString &videoPath, QWidget *parent);

public Q_SLOTS:
    void slotBrowse();
    void slotEnableDisableOk();

    /// Writes the frames; the dialog closes only if that went well.
    void accept() override;
    void reject() override;

protected:
    ExtractFramesFromVideoDlg(const QString &videoPath, QWidget *parent);

    void setupUi();
    /// Whether files that are in the way may be overwritten; true if there are none.
    bool acceptPossibleOverwrite(const QString &folder, const QString &baseName);
    /// Whether the frames are there and new, or the user takes what there is.
    bool verifySaneExport(const QDateTime &startTime, const QString &folder,
                          const QString &baseName);

private:
    static bool getVideoInformation(const QString &videoPath, PrivateVideoInformation &information);
    bool extractFrames(const QString &outputPattern);
    bool exportTo(const QString &folder, const QString &baseName, const QDateTime &startTime);
    void setInputEnabled(bool enabled);
    void showFrame(int frame);

    std::unique_ptr<ExtractFramesFromVideoDlgPrivate> d_;
};
