#include "ZelVideoReport.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>
#include <string_view>

namespace {

constexpr std::string_view mark = "frame=";
constexpr int most = std::numeric_limits<int>::max();

void readDuration(const QString &line, ZelVideoReport &report)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*duration:\\s*(\\d+):(\\d\\d):(\\d\\d).(\\d+)"));
    const QRegularExpressionMatch match = pattern.match(line);
    if (!match.hasMatch())
        return;
    const double fraction = (QStringLiteral("0.") + match.captured(4)).toDouble();
    report.seconds = match.captured(1).toDouble() * 3600.0 + match.captured(2).toDouble() * 60.0 +
                     match.captured(3).toDouble() + fraction;
    report.durationText =
        line.mid(match.capturedStart(1),
                 match.capturedLength() - match.capturedStart(1) + match.capturedStart());
    if (report.durationText.startsWith(QLatin1String("00:")))
        report.durationText.remove(0, 3);
}

QSize sizeIn(const QString &field)
{
    static const QRegularExpression pattern(QStringLiteral("^\\s*(\\d+)x(\\d+)(?=\\s|$)"));
    const QRegularExpressionMatch match = pattern.match(field);
    // Numbers that are too large for an int read as 0.
    return match.hasMatch() ? QSize(match.captured(1).toInt(), match.captured(2).toInt()) : QSize();
}

double rateIn(const QString &field, const QString &unit)
{
    static const QRegularExpression pattern(
        QStringLiteral("^\\s*(\\d+(?:\\.\\d+)?)(k?) ([a-z]+)\\b"));
    const QRegularExpressionMatch match = pattern.match(field);
    if (!match.hasMatch() || match.captured(3) != unit)
        return 0;
    return match.captured(1).toDouble() * (match.captured(2).isEmpty() ? 1 : 1000);
}

void readStream(const QString &line, ZelVideoReport &report)
{
    if (!line.contains(QLatin1String(" video:")) || line.contains(QLatin1String("(attached pic)")))
        return;
    double average = 0;
    double base = 0;
    const QStringList fields = line.split(u',');
    for (const QString &field : fields) {
        if (report.resolution.isEmpty())
            report.resolution = sizeIn(field);
        average = std::max(average, rateIn(field, QStringLiteral("fps")));
        base = std::max(base, rateIn(field, QStringLiteral("tbr")));
    }
    if (!report.resolution.isEmpty())
        report.frameRate = average > 0 ? average : base;
}

} // namespace

ZelVideoReport ZelVideoReport::parse(const QByteArray &report)
{
    ZelVideoReport result;
    const QStringList lines = QString::fromUtf8(report).toLower().split(u'\n');
    for (const QString &line : lines) {
        if (result.durationText.isEmpty())
            readDuration(line, result);
        if (result.resolution.isEmpty() && line.trimmed().startsWith(QLatin1String("stream")))
            readStream(line, result);
    }
    return result;
}

int ZelVideoReport::frameCount() const
{
    // Half a hundredth may be missing from the duration, but a sound track that is a little longer
    // than the pictures must not give one more.
    const double rounding = std::min(frameRate * 0.005, 0.25);
    const double count = frameRate * seconds + rounding;
    return count < most ? int(count) : most;
}

void ZelFrameProgress::feed(const QByteArray &piece)
{
    for (const char character : piece)
        feed(character);
}

void ZelFrameProgress::feed(char character)
{
    if (matched_ < int(mark.size())) {
        // No two characters of the mark are a beginning of it.
        if (character == mark[size_t(matched_)])
            ++matched_;
        else
            matched_ = character == mark.front() ? 1 : 0;
        return;
    }
    if (character >= '0' && character <= '9') {
        const int digit = character - '0';
        number_ = number_ < 0 ? digit : number_ > (most - digit) / 10 ? most : number_ * 10 + digit;
        return;
    }
    if (number_ < 0 && character == ' ')
        return;
    end();
    feed(character);
}

void ZelFrameProgress::end()
{
    if (number_ >= 0)
        frame_ = number_;
    number_ = -1;
    matched_ = 0;
}
