#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QRegularExpression>
#include <QtTest>

#include <optional>
#include <vector>

namespace {

struct Floor
{
    int number;
    QRegularExpression pattern;
};

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

QDir sources()
{
    return QDir(QStringLiteral(ZEL_SOURCE_DIR "/src"));
}

std::vector<Floor> readFloors()
{
    std::vector<Floor> floors;
    const QStringList lines =
        readText(QStringLiteral(ZEL_SOURCE_DIR "/tests/project/floors.txt")).split(u'\n');
    for (const QString &line : lines) {
        if (line.isEmpty() || line.startsWith(u'#'))
            continue;
        const QString pattern = QRegularExpression::anchoredPattern(line.section(u' ', 1));
        floors.push_back({line.section(u' ', 0, 0).toInt(), QRegularExpression(pattern)});
    }
    return floors;
}

QStringList sourceFiles()
{
    QStringList files;
    QDirIterator it(sources().path(), {QStringLiteral("*.h"), QStringLiteral("*.cpp")}, QDir::Files,
                    QDirIterator::Subdirectories);
    while (it.hasNext())
        files.append(sources().relativeFilePath(it.next()));
    files.sort();
    return files;
}

/// The source file behind an include line, relative to src; empty for headers of others.
QString resolve(const QString &include, bool quoted, const QString &includingFile)
{
    if (quoted) {
        const QString library = includingFile.section(u'/', 0, 1);
        for (const QString &folder : {includingFile.section(u'/', 0, -2), library}) {
            const QString path = QDir::cleanPath(folder + u'/' + include);
            if (sources().exists(path))
                return path;
        }
        return {};
    }
    static const QRegularExpression quotedPath(QStringLiteral("\"(.*)\""));
    QString path = QStringLiteral(ZEL_BINARY_DIR "/include/") + include;
    for (int hop = 0; hop < 3 && QFile::exists(path); ++hop) {
        const QString next = quotedPath.match(readText(path)).captured(1);
        if (next.isEmpty())
            return {};
        path = QDir::cleanPath(QFileInfo(path).path() + u'/' + next);
        if (path.startsWith(sources().path()))
            return sources().relativeFilePath(path);
    }
    return {};
}

} // namespace

class FloorsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everySourceFileStandsOnAFloor();
    void noFileIncludesFromAFloorAbove();

private:
    std::optional<int> floorOf(const QString &file) const
    {
        for (const Floor &floor : floors_) {
            if (floor.pattern.match(file).hasMatch())
                return floor.number;
        }
        return std::nullopt;
    }

    const std::vector<Floor> floors_ = readFloors();
};

void FloorsTest::everySourceFileStandsOnAFloor()
{
    const QStringList files = sourceFiles();
    QVERIFY(!files.isEmpty());
    QStringList homeless;
    for (const QString &file : files) {
        if (!floorOf(file))
            homeless.append(file);
    }
    QVERIFY2(homeless.isEmpty(), qPrintable(homeless.join(QStringLiteral(", "))));
}

void FloorsTest::noFileIncludesFromAFloorAbove()
{
    static const QRegularExpression includeLine(
        QStringLiteral("^\\s*#\\s*include\\s*([<\"])([^>\"]+)[>\"]"),
        QRegularExpression::MultilineOption);
    QStringList faults;
    int followed = 0;
    for (const QString &file : sourceFiles()) {
        const QString text = readText(sources().filePath(file));
        auto match = includeLine.globalMatch(text);
        while (match.hasNext()) {
            const auto line = match.next();
            const QString target =
                resolve(line.captured(2), line.captured(1) == QStringLiteral("\""), file);
            if (target.isEmpty())
                continue;
            ++followed;
            if (floorOf(target).value_or(0) > floorOf(file).value_or(0))
                faults.append(file + QStringLiteral(" includes ") + target);
        }
    }
    QVERIFY(followed > 0);
    QVERIFY2(faults.isEmpty(), qPrintable(faults.join(u'\n')));
}

QTEST_GUILESS_MAIN(FloorsTest)
#include "tst_floors.moc"
