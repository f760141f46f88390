// What is read of the program's reports, and which files are frames.

#include "TestCase.h"

#include "ZelFrameFiles.h"
#include "ZelVideoReport.h"

#include <QDir>

#include <limits>

namespace {

QString text(const char *characters)
{
    return QString::fromUtf8(characters);
}

QByteArray seed(const QString &name)
{
    QFile file(text(ZEL_SOURCE_DIR "/fuzz/videoreport/seeds/") + name + text(".txt"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class VideoReportTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAreRead_data();
    void reportsAreRead();
    void progressIsFoundInPieces_data();
    void progressIsFoundInPieces();
    void existingFramesAreListedInOrder();
    void onlyNewFramesCount();
};

void VideoReportTest::reportsAreRead_data()
{
    QTest::addColumn<QByteArray>("report");
    QTest::addColumn<QString>("duration");
    QTest::addColumn<QSize>("resolution");
    QTest::addColumn<int>("frames");
    const auto row = [](const char *name, const QByteArray &report, const char *duration,
                        QSize resolution, int frames) {
        QTest::newRow(name) << report << text(duration) << resolution << frames;
    };
    const auto real = [&row](const char *name, const char *duration, QSize resolution, int frames) {
        row(name, seed(text(name)), duration, resolution, frames);
    };
    const QSize size(320, 240);
    real("mp4", "00:02.00", size, 50);
    real("mkv", "00:02.02", size, 50);
    real("gif", "00:02.10", size, 21);
    real("mpegts", "00:02.01", size, 60);
    real("ntsc", "00:10.01", size, 300);
    real("sequence", "00:02.00", size, 50);
    real("awkward_name", "00:02.00", size, 50);
    real("sound", "00:02.06", QSize(), 0);
    real("cover", "00:02.06", QSize(), 0);
    real("broken", "", QSize(), 0);
    real("text", "", QSize(), 0);
    real("missing", "", QSize(), 0);

    const auto made = [](const char *duration, const char *stream) {
        return QByteArray("Duration: ") + duration + "\n Stream #0.0: Video: mpeg4, " + stream;
    };
    row("base rate only", made("00:00:10.0", "640x480, 25 tbr, 25 tbn"), "00:10.0", QSize(640, 480),
        250);
    row("fraction of one digit", made("01:00:00.5", "8x6, 10 fps"), "01:00:00.5", QSize(8, 6),
        36005);
    row("10 hours", made("10:00:00.00", "8x6, 60 fps"), "10:00:00.00", QSize(8, 6), 2160000);
    row("rate 0", made("00:00:10.00", "8x6, 0 fps"), "00:10.00", QSize(8, 6), 0);
    row("rate 90k", made("00:00:10.00", "8x6, 90k fps"), "00:10.00", QSize(8, 6), 900000);
    row("more than fits", made("999999999999:00:00.00", "8x6, 90k fps"), "999999999999:00:00.00",
        QSize(8, 6), std::numeric_limits<int>::max());
    row("no size", made("00:00:10.00", "0x0, 99999999999x8, 25 fps"), "00:10.00", QSize(), 0);
}

void VideoReportTest::reportsAreRead()
{
    QFETCH(QByteArray, report);
    QFETCH(QSize, resolution);
    QVERIFY(!report.isEmpty());
    const ZelVideoReport result = ZelVideoReport::parse(report);
    QTEST(result.durationText, "duration");
    QTEST(result.frameCount(), "frames");
    QCOMPARE(result.isVideo(), !resolution.isEmpty());
    if (result.isVideo())
        QCOMPARE(result.resolution, resolution);
}

void VideoReportTest::progressIsFoundInPieces_data()
{
    QTest::addColumn<QByteArrayList>("pieces");
    QTest::addColumn<int>("frame");
    using Pieces = QByteArrayList;
    QTest::newRow("real") << Pieces{seed(text("extraction"))} << 50;
    QTest::newRow("last of a piece") << Pieces{"frame=    1 fps=0.0 \rframe=   12 fps=3 "} << 12;
    QTest::newRow("cut number") << Pieces{"frame=  7 \rframe=  1", "2", "3 fps"} << 123;
    QTest::newRow("unfinished number") << Pieces{"frame=  7 \rframe=  12"} << 7;
    QTest::newRow("cut mark") << Pieces{"frframe", "=", " ", "5\r"} << 5;
    QTest::newRow("no number") << Pieces{"frame= x frame=frame=9 "} << 9;
    QTest::newRow("nothing") << Pieces{"fps=12 ", "", "frame"} << -1;
    QTest::newRow("more than fits")
        << Pieces{"frame=99999999999999999999 "} << std::numeric_limits<int>::max();
}

void VideoReportTest::progressIsFoundInPieces()
{
    QFETCH(QByteArrayList, pieces);
    ZelFrameProgress progress;
    for (const QByteArray &piece : pieces)
        progress.feed(piece);
    QTEST(progress.frame(), "frame");
}

void VideoReportTest::existingFramesAreListedInOrder()
{
    for (const char *name : {"c10.png", "c9.png", "c007.png", "c.png", "c1.jpeg", "cx1.png",
                             "d1.png", "c1png", "c99999999999999999999.png"})
        writeFile(text(name), "x");
    QDir(folder()).mkdir(text("c5.png"));
    const ZelFrameFiles files(folder(), text("c"), text("png"));
    QCOMPARE(files.existing(), QStringList({text("c007.png"), text("c9.png"), text("c10.png"),
                                            text("c99999999999999999999.png")}));
    const ZelFrameFiles percent(text("a%\\b"), text("50%d"), text("png"));
    QCOMPARE(percent.pattern(), text("a%%/b/50%%d%01d.png"));
    QCOMPARE(ZelFrameFiles::baseNameFor(text("/v/.mp4")), text("frame"));
}

void VideoReportTest::onlyNewFramesCount()
{
    const QDateTime start(QDate(2024, 5, 5), QTime(12, 0, 1, 500));
    const auto write = [&](const char *name, const QDateTime &stamp) {
        QFile file(writeFile(text(name), "x"));
        QVERIFY(file.open(QIODevice::ReadWrite));
        QVERIFY(file.setFileTime(stamp, QFileDevice::FileModificationTime));
    };
    const ZelFrameFiles files(folder(), text("c"), text("png"));
    QCOMPARE(files.writtenSince(start, 3).all, 0);
    write("c1.png", start.addMSecs(-1));
    write("c2.png", start);
    // A file system of whole, even seconds rounds down.
    write("c3.png", QDateTime(start.date(), QTime(12, 0, 0)));
    write("c03.png", start);
    write("c0.png", start);
    QCOMPARE(files.writtenSince(start, 3).expected, 2);
    QCOMPARE(files.writtenSince(start, 3).first, folder() + text("/c2.png"));
    write("c1.png", start);
    write("c4.png", start);
    write("c6.png", start);
    QCOMPARE(files.writtenSince(start, 3).expected, 3);
    QCOMPARE(files.writtenSince(start, 3).all, 4);
    QCOMPARE(files.writtenSince(start, std::numeric_limits<int>::max()).expected, 5);
}

ZEL_TEST_MAIN(VideoReportTest)
#include "tst_video_report.moc"
