#pragma once

#include <QByteArray>
#include <QEventLoop>
#include <QString>
#include <QStringList>

#include <functional>

class QProcess;

/// Runs the external video program, one run at a time. The event loop is served in between, so
/// that windows stay alive; no run outlives its call.
class ZelFrameExtraction
{
public:
    enum class Result {
        Ended,      ///< the program has ended by itself, with whatever success
        NotStarted, ///< there is no such program, or it can't be started
        GivenUp,    ///< it took too long, or nobody wanted to wait for it any more
        Cancelled
    };

    explicit ZelFrameExtraction(const QString &program);

    /// Where the program has to lie: beside the application.
    static QString programPath();

    /// How long the program may take for a report; 10 seconds at first.
    void setReportLimit(int milliseconds) { reportLimit_ = milliseconds; }
    /// How long an extraction may be silent before the user is asked; 5 seconds at first.
    void setSilenceLimit(int milliseconds) { silenceLimit_ = milliseconds; }

    /// Has the program describe the video. Only the beginning of a very long report is kept. Input
    /// of the user waits until the end.
    Result readReport(const QString &videoPath, QByteArray &report);

    /// Has the program write the frames. Each number of a frame that the program tells goes to
    /// progressed; after a time of silence keepWaiting is asked.
    Result extract(const QString &videoPath, const QString &pattern,
                   const std::function<void(int)> &progressed,
                   const std::function<bool()> &keepWaiting);

    /// Ends the program that runs; called from an event, while a run waits.
    void cancel();
    bool isRunning() const { return process_; }

private:
    struct Watch
    {
        std::function<void(const QByteArray &)> read;
        std::function<bool()> keepWaiting;
        int limit;
        bool isSilenceOnly;
        QEventLoop::ProcessEventsFlags events;
    };
    Result run(const QStringList &arguments, const Watch &watch);
    Result watchOver(QProcess &process, const Watch &watch);

    QString program_;
    int reportLimit_ = 10000;
    int silenceLimit_ = 5000;
    QProcess *process_ = nullptr;
    bool isCancelled_ = false;
};
