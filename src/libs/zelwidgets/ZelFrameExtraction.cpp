#include "ZelFrameExtraction.h"

#include "ZelVideoReport.h"

#include <QCoreApplication>
#include <QDebug>
#include <QElapsedTimer>
#include <QProcess>
#include <QScopedValueRollback>

namespace {

constexpr int startLimit = 1000;
constexpr int turn = 20;
constexpr qsizetype longestReport = 1 << 20;

void end(QProcess &process)
{
    process.kill();
    process.waitForFinished();
}

} // namespace

ZelFrameExtraction::ZelFrameExtraction(const QString &program)
    : program_(program)
{}

QString ZelFrameExtraction::programPath()
{
    QString path = QCoreApplication::applicationDirPath() + QLatin1String("/ffmpeg");
#ifdef Q_OS_WIN
    path += QLatin1String(".exe");
#endif
    return path;
}

ZelFrameExtraction::Result ZelFrameExtraction::readReport(const QString &videoPath,
                                                          QByteArray &report)
{
    report.clear();
    const auto read = [&report](const QByteArray &piece) {
        report += piece.left(longestReport - report.size());
    };
    return run(
        {QStringLiteral("-i"), videoPath, QStringLiteral("-f"), QStringLiteral("null"),
         QStringLiteral("/dev/null")},
        {read, [] { return false; }, reportLimit_, false, QEventLoop::ExcludeUserInputEvents});
}

ZelFrameExtraction::Result ZelFrameExtraction::extract(const QString &videoPath,
                                                       const QString &pattern,
                                                       const std::function<void(int)> &progressed,
                                                       const std::function<bool()> &keepWaiting)
{
    ZelFrameProgress progress;
    const auto read = [&](const QByteArray &piece) {
        progress.feed(piece);
        if (progress.frame() >= 0)
            progressed(progress.frame());
    };
    return run({QStringLiteral("-y"), QStringLiteral("-i"), videoPath, pattern},
               {read, keepWaiting, silenceLimit_, true, QEventLoop::AllEvents});
}

ZelFrameExtraction::Result ZelFrameExtraction::run(const QStringList &arguments, const Watch &watch)
{
    QProcess process;
    const QScopedValueRollback running(process_, &process);
    isCancelled_ = false;
    process.setStandardInputFile(QProcess::nullDevice());
    process.setStandardOutputFile(QProcess::nullDevice());
    QObject::connect(&process, &QProcess::errorOccurred, &process, [this, &process] {
        if (!isCancelled_)
            qDebug() << "Video program:" << process.errorString();
    });
    process.start(program_, arguments, QIODevice::ReadWrite);
    if (!process.waitForStarted(startLimit))
        return Result::NotStarted;
    const Result result = watchOver(process, watch);
    if (process.state() != QProcess::NotRunning)
        end(process);
    return result;
}

ZelFrameExtraction::Result ZelFrameExtraction::watchOver(QProcess &process, const Watch &watch)
{
    QElapsedTimer waited;
    const auto read = [&] {
        const QByteArray piece = process.readAllStandardError();
        if (piece.isEmpty())
            return;
        if (watch.isSilenceOnly)
            waited.restart();
        watch.read(piece);
    };
    // A program that prints a lot must be read while a question is open too.
    const QObject context;
    QObject::connect(&process, &QProcess::readyReadStandardError, &context, read);
    waited.start();
    while (process.state() != QProcess::NotRunning) {
        process.waitForFinished(turn);
        read();
        QCoreApplication::processEvents(watch.events);
        if (isCancelled_)
            return Result::Cancelled;
        if (process.state() == QProcess::NotRunning || waited.elapsed() < watch.limit)
            continue;
        const bool goOn = watch.keepWaiting();
        if (isCancelled_)
            return Result::Cancelled;
        if (!goOn)
            return Result::GivenUp;
        waited.restart();
    }
    read();
    return Result::Ended;
}

void ZelFrameExtraction::cancel()
{
    if (!process_)
        return;
    isCancelled_ = true;
    process_->kill();
}
