#include "Rows.h"
#include "TestCase.h"

#include "ZelFrameExtraction.h"

#include <ZelWidgets/ExtractFramesFromVideoDlg>
#include <ZelWidgets/IconColorTheme>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QDir>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QProcess>
#include <QProgressBar>
#include <QPushButton>
#include <QStandardPaths>
#include <QTimer>

#include <functional>

namespace {

using Step = std::function<void(QDialog *)>;

QString text(const char *characters)
{
    return QString::fromUtf8(characters);
}

/// Answers modal dialogs in their order, a step each time one comes to the front, and keeps their
/// titles and texts. Those that were not expected are rejected.
class Conversation : public QTimer
{
public:
    explicit Conversation(const QList<Step> &steps)
        : steps_(steps)
    {
        callOnTimeout(this, [this] { look(); });
    }

    VideoInformation during(const QString &video, QWidget *parent = nullptr)
    {
        start(5);
        const VideoInformation result = ExtractFramesFromVideoDlg::getExtractedFiles(video, parent);
        stop();
        return result;
    }

    QStringList titles;
    QStringList texts;

private:
    void look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || dialog == last_ || !dialog->isVisible() || isAtWork(dialog))
            return;
        last_ = dialog;
        titles.append(dialog->windowTitle());
        const auto *box = qobject_cast<QMessageBox *>(dialog);
        texts.append(box ? box->text() : QString());
        const Step step = steps_.isEmpty() ? Step(&QDialog::reject) : steps_.takeFirst();
        // Not from here: the timer has to go on while the step runs.
        QTimer::singleShot(0, dialog, [step, dialog] { step(dialog); });
    }

    static bool isAtWork(const QDialog *dialog)
    {
        const auto *folder = dialog->findChild<QLineEdit *>();
        return folder && !folder->isEnabled();
    }

    QList<Step> steps_;
    QPointer<QDialog> last_;
};

void ok(QDialog *dialog)
{
    dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->click();
}

void yes(QDialog *dialog)
{
    qobject_cast<QMessageBox *>(dialog)->button(QMessageBox::Yes)->click();
}

void escape(QDialog *dialog)
{
    QTest::keyClick(dialog, Qt::Key_Escape);
}

Step okWith(const QString &folder, const QString &format = text("PNG"))
{
    return [=](QDialog *dialog) {
        dialog->findChild<QLineEdit *>()->setText(folder);
        dialog->findChild<QComboBox *>()->setCurrentText(format);
        ok(dialog);
    };
}

const QString dialogTitle = text("Extract Video Frames");

// Four frames of 8 x 8.
const QByteArray smallReport = "  Duration: 00:00:02.00, start: 0\n"
                               "  Stream #0:0: Video: gif, bgra, 8x8, 2 fps, 2 tbr\n";

/// Whether the process runs, whose number is in the file; an end that nobody waited for counts as
/// running.
bool isAlive(const QString &pidFile)
{
    QFile file(pidFile);
    if (!file.open(QIODevice::ReadOnly))
        qWarning("the program has not even begun");
    return QFileInfo::exists(text("/proc/") + QString::fromLatin1(file.readAll().trimmed()));
}

} // namespace

class VideoTest : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void cleanup();
    void aVideoBecomesPictures_data();
    void aVideoBecomesPictures();
    void whatIsNoVideoIsRefused_data();
    void whatIsNoVideoIsRefused();
    void faultsAreTold_data();
    void faultsAreTold();
    void theUserIsAskedBeforeFilesAreOverwritten();
    void theDialogOffersWhatItNeeds();
    void escapeEndsTheProgramAndLeavesTheFiles();
    void theDialogMayDieWhileItWorks();
    void aSilentProgramIsWaitedForAsLongAsWanted();
    void aReportIsBoundedInTimeAndLength_data();
    void aReportIsBoundedInTimeAndLength();

private:
    /// Puts a script in the place of the program; it tells the small report and runs the lines for
    /// an extraction, with the name of the files up to their number in $base.
    void useScript(const QByteArray &lines);
    bool useRealProgram();
    void writeProgram(const QByteArray &script);
    void makeClip(const QString &path);
    VideoInformation extract(Conversation &conversation) { return conversation.during(video()); }
    QString video() const { return folder() + text("/clip.mp4"); }

    const QString currentFolder_ = QDir::currentPath();
};

void VideoTest::initTestCase()
{
    IconColorTheme::instance()->buildMap(text("[{\"icon_main\": \"#808080\"}]"));
}

void VideoTest::cleanup()
{
    QFile::remove(ZelFrameExtraction::programPath());
    const QString current = QDir::currentPath();
    QDir::setCurrent(currentFolder_);
    TestCase::cleanup();
    QCOMPARE(current, currentFolder_);
}

void VideoTest::writeProgram(const QByteArray &script)
{
    QFile::remove(ZelFrameExtraction::programPath());
    QFile file(ZelFrameExtraction::programPath());
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n" + script + '\n');
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

void VideoTest::useScript(const QByteArray &lines)
{
    writeProgram("for last; do :; done\nbase=\"${last%%\\%*}\"\n"
                 "case \"$*\" in *'-f null'*) cat >&2 <<'REPORT'\n" +
                 smallReport + "REPORT\nexit 0;; esac\n" + lines);
}

bool VideoTest::useRealProgram()
{
    const QString program = QStandardPaths::findExecutable(text("ffmpeg"));
    QFile::remove(ZelFrameExtraction::programPath());
    return !program.isEmpty() && QFile::link(program, ZelFrameExtraction::programPath());
}

void VideoTest::makeClip(const QString &path)
{
    QStringList arguments = QProcess::splitCommand(
        text("-v error -f lavfi -i testsrc=s=64x48:r=12:d=1 -f mp4 -c:v mpeg4"));
    arguments.append(path);
    QCOMPARE(QProcess::execute(ZelFrameExtraction::programPath(), arguments), 0);
}

using Export = std::tuple<Text, Text, Text>;

void VideoTest::aVideoBecomesPictures_data()
{
    addRows<Export>({
        {"png", {"clip.mp4", "clip", "PNG"}},
        {"jpeg", {"clip.mp4", "clip", "JPEG"}},
        {"awkward name", {"it's 100%d \"\u00fc\".mp4", "it's 100%d \"\u00fc\"", "PNG"}},
        {"no base name", {".mp4", "frame", "PNG"}},
    });
}

void VideoTest::aVideoBecomesPictures()
{
    if (!useRealProgram())
        QSKIP("there is no ffmpeg on this system");
    const auto [name, base, format] = currentRow<Export>();
    const QString path = folder() + u'/' + name;
    makeClip(path);
    QVERIFY(QDir(folder()).mkdir(text("50% out")));

    Conversation conversation({okWith(folder() + text("\\50% out\\"), format)});
    const VideoInformation result = conversation.during(path);
    QCOMPARE(conversation.titles, QStringList(dialogTitle));
    QCOMPARE(result.frameCount, 12);
    const QString suffix = u'.' + format.toLower();
    const QString start = folder() + text("/50% out/") + base;
    QCOMPARE(result.firstFile, start + u'1' + suffix);
    QCOMPARE(QDir(folder() + text("/50% out")).entryList(QDir::Files).size(), 12);
    QCOMPARE(QImage(result.firstFile).size(), QSize(64, 48));
    QVERIFY(QImage(start + text("12") + suffix) != QImage(result.firstFile));
}

using Refusal = std::pair<Text, Text>;

void VideoTest::whatIsNoVideoIsRefused_data()
{
    addRows<Refusal>({
        {"no program", {"", "a.mp4"}},
        {"no path", {"real", ""}},
        {"no file", {"real", "none.mp4"}},
        {"text", {"real", "a.mp4"}},
        {"nonsense", {"script", "a.mp4"}},
    });
}

void VideoTest::whatIsNoVideoIsRefused()
{
    const auto [program, file] = currentRow<Refusal>();
    if (program == QLatin1String("script"))
        writeProgram("head -c 5000 /dev/urandom >&2; kill -9 $$");
    else if (program == QLatin1String("real") && !useRealProgram())
        QSKIP("there is no ffmpeg on this system");
    writeFile(text("a.mp4"), "no video");
    Conversation conversation({&QDialog::accept});
    const VideoInformation result =
        conversation.during(file.isEmpty() ? QString() : folder() + u'/' + file);
    QCOMPARE(conversation.titles, QStringList(text("Video Error")));
    QCOMPARE(conversation.texts, QStringList(text("Failed to extract video information.")));
    QVERIFY(result.firstFile.isEmpty());
    QCOMPARE(result.frameCount, 0);
}

void VideoTest::faultsAreTold_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<QString>("subfolder");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("framesIfTaken");
    const auto row = [](const char *name, const char *lines, const char *subfolder,
                        const char *title, const char *text_, int frames = 0) {
        QTest::newRow(name) << QByteArray(lines) << text(subfolder) << text(title) << text(text_)
                            << frames;
    };
    const auto failed = [&row](const char *name, const char *lines, const char *subfolder = "") {
        row(name, lines, subfolder, "Video extract failed",
            "Could not extract images to the folder");
    };
    failed("ends at once", "exit 1");
    failed("is killed", "kill -9 $$");
    failed("writes nothing", "echo frame= 4 >&2; echo frame=-9 99999999999 >&2");
    failed("folder goes", "rm -r \"${base%/*}\"", "there");
    row("no folder", "echo", "none", "Error", "Failed to write in the selected directory.");
    row("some missing", "for i in 2 3 4; do : > \"$base$i.png\"; done", "", "Frames missing",
        "3 of 4 frames were exported.\nContinue?", 3);
    row("is silent", "exec sleep 60", "", "Error while exporting",
        "Failed to extract images.\nDo you want to continue?");
}

void VideoTest::faultsAreTold()
{
    QFETCH(QByteArray, lines);
    QFETCH(QString, subfolder);
    QFETCH(int, framesIfTaken);
    useScript(lines);
    QVERIFY(QDir(folder()).mkdir(text("there")));
    const QString target = folder() + u'/' + subfolder;

    bool isReady = false;
    Conversation conversation({okWith(target), escape, [&](QDialog *dialog) {
                                   isReady = dialog->findChild<QLineEdit *>()->isEnabled() &&
                                             dialog->findChild<QProgressBar *>()->value() == 0;
                                   dialog->reject();
                               }});
    QCOMPARE(extract(conversation).frameCount, 0);
    QVERIFY(isReady);
    QFETCH(QString, title);
    QCOMPARE(conversation.titles, QStringList({dialogTitle, title, dialogTitle}));
    QTEST(conversation.texts.value(1), "text");
    if (framesIfTaken == 0)
        return;

    Conversation taking({okWith(target), yes, yes});
    const VideoInformation result = extract(taking);
    QCOMPARE(result.frameCount, framesIfTaken);
    QCOMPARE(result.firstFile, folder() + text("/clip2.png"));
}

void VideoTest::theUserIsAskedBeforeFilesAreOverwritten()
{
    useScript("for i in 1 2 3 4 5 6 7 8 9 10 11 12; do echo new > \"$base$i.png\"; done");
    for (int i = 1; i <= 12; ++i)
        writeFile(text("clip%1.png").arg(i), "old");
    Conversation refusing({ok, escape});
    QCOMPARE(extract(refusing).frameCount, 0);
    QStringList lines{text("The following image files will be overwritten:")};
    for (int i = 1; i <= 10; ++i)
        lines.append(text("clip%1.png").arg(i));
    lines.append({text("(and more ...)"), text("Continue?")});
    QCOMPARE(refusing.titles,
             QStringList({dialogTitle, text("Overwrite existing files?"), dialogTitle}));
    QCOMPARE(refusing.texts.value(1), lines.join(u'\n'));

    Conversation agreeing({ok, yes});
    // More than the report promised.
    QCOMPARE(extract(agreeing).frameCount, 12);
}

void VideoTest::theDialogOffersWhatItNeeds()
{
    useScript(QByteArray());
    QStringList labels;
    bool isOkWithoutFolder = true;
    const Step look = [&](QDialog *dialog) {
        for (const QLabel *label : dialog->findChildren<QLabel *>())
            labels.append(label->text());
        auto *folder = dialog->findChild<QLineEdit *>();
        QCOMPARE(folder->text(), this->folder());
        QCOMPARE(dialog->findChild<QProgressBar *>()->maximum(), 4);
        folder->clear();
        isOkWithoutFolder =
            dialog->findChild<QDialogButtonBox *>()->button(QDialogButtonBox::Ok)->isEnabled();
        // The program is gone when the frames are to be written.
        QFile::remove(ZelFrameExtraction::programPath());
        folder->setText(this->folder());
        ok(dialog);
    };
    Conversation conversation({look, escape});
    extract(conversation);
    QVERIFY(labels.contains(text("Video Resolution: 8x8 / Duration: 00:02.00 / Frames: 4")));
    QVERIFY(!isOkWithoutFolder);
    QCOMPARE(conversation.titles.value(1), text("Error in video extract"));
    QCOMPARE(conversation.texts.value(1), text("Could not startup process"));
}

void VideoTest::escapeEndsTheProgramAndLeavesTheFiles()
{
    useScript(": > \"${base}1.png\"; echo $$ > \"${base}.pid\"\n"
              "printf 'frame=  1 fps=0\\rframe=   3 fps=1\\r' >&2; exec sleep 60");
    const QString pid = folder() + text("/clip.pid");
    bool wasAlive = false;
    bool wasLocked = false;
    const Step start = [&](QDialog *dialog) {
        auto *bar = dialog->findChild<QProgressBar *>();
        connect(bar, &QProgressBar::valueChanged, dialog, [&, dialog](int value) {
            if (value != 3)
                return;
            wasAlive = isAlive(pid);
            wasLocked = !dialog->findChild<QLineEdit *>()->isEnabled() &&
                        !dialog->findChild<QComboBox *>()->isEnabled();
            QTimer::singleShot(0, dialog, [dialog] { escape(dialog); });
        });
        ok(dialog);
    };
    Conversation conversation({start});
    const VideoInformation result = extract(conversation);
    QVERIFY(wasAlive);
    QVERIFY(wasLocked);
    QVERIFY(!isAlive(pid));
    QCOMPARE(result.frameCount, 0);
    QVERIFY(QFileInfo::exists(folder() + text("/clip1.png")));
    QCOMPARE(conversation.titles, QStringList(dialogTitle));
}

void VideoTest::theDialogMayDieWhileItWorks()
{
    useScript("echo $$ > \"${base}.pid\"; echo 'frame= 2 ' >&2; exec sleep 60");
    auto *parent = new QWidget;
    Conversation conversation({[parent](QDialog *dialog) {
        connect(dialog->findChild<QProgressBar *>(), &QProgressBar::valueChanged, qApp,
                [parent] { QTimer::singleShot(0, qApp, [parent] { delete parent; }); });
        ok(dialog);
    }});
    QCOMPARE(conversation.during(video(), parent).frameCount, 0);
    QVERIFY(!isAlive(folder() + text("/clip.pid")));
}

void VideoTest::aSilentProgramIsWaitedForAsLongAsWanted()
{
    useScript("echo $$ > \"${base}.pid\"; exec sleep 60");
    ZelFrameExtraction extraction(ZelFrameExtraction::programPath());
    extraction.setSilenceLimit(100);
    const QString pattern = folder() + text("/c%01d.png");
    int turns = 0;
    QTimer clock;
    clock.callOnTimeout(&clock, [&] { ++turns; });
    clock.start(0);
    int questions = 0;
    const auto result = extraction.extract(
        video(), pattern, [](int) {}, [&] { return ++questions < 3; });
    QCOMPARE(int(result), int(ZelFrameExtraction::Result::GivenUp));
    QCOMPARE(questions, 3);
    QVERIFY2(turns >= 6, "events are not served while the program is waited for");
    QVERIFY(!isAlive(folder() + text("/c.pid")));
    QVERIFY(!extraction.isRunning());
}

void VideoTest::aReportIsBoundedInTimeAndLength_data()
{
    QTest::addColumn<QByteArray>("lines");
    QTest::addColumn<bool>("ends");
    QTest::newRow("silent") << QByteArray("exec sleep 60") << false;
    QTest::newRow("endless") << QByteArray("exec yes >&2") << false;
    QTest::newRow("100 MB") << QByteArray("yes | head -c 100000000 >&2") << true;
}

void VideoTest::aReportIsBoundedInTimeAndLength()
{
    QFETCH(QByteArray, lines);
    QFETCH(bool, ends);
    writeProgram(lines);
    ZelFrameExtraction extraction(ZelFrameExtraction::programPath());
    if (!ends)
        extraction.setReportLimit(300);
    QByteArray report;
    const auto result = extraction.readReport(video(), report);
    QCOMPARE(result == ZelFrameExtraction::Result::Ended, ends);
    QVERIFY(report.size() <= 1 << 20);
}

ZEL_TEST_MAIN(VideoTest)
#include "tst_video.moc"
