#pragma once

#include <QByteArray>
#include <QSize>
#include <QString>

/// What a video program tells about a file: its report, read.
struct ZelVideoReport
{
    QString durationText; ///< as reported, without hours if there are none
    double seconds = 0;
    QSize resolution;
    double frameRate = 0; ///< in frames a second; 0 if the report doesn't tell

    /// Reads the report; what it doesn't tell stays at its default. Cover pictures of sound files
    /// are no video.
    static ZelVideoReport parse(const QByteArray &report);

    /// True if there is a duration and a video stream with a size.
    bool isVideo() const { return !durationText.isEmpty() && !resolution.isEmpty(); }
    /// Number of whole frames in the duration, which a report gives in hundredths of a second.
    int frameCount() const;
};

/// Finds the number of the latest frame in what a video program prints at work. The pieces may be
/// cut anywhere, within a number too.
class ZelFrameProgress
{
public:
    void feed(const QByteArray &piece);
    /// The last complete number so far, -1 if there was none.
    int frame() const { return frame_; }

private:
    void feed(char character);
    void end();

    int matched_ = 0; ///< characters of the mark that have come
    int number_ = -1; ///< of the digits that have come behind the mark
    int frame_ = -1;
};
