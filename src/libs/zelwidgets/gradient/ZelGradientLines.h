#pragma once

#include <QByteArrayView>
#include <QString>

#include <limits>

/// Reads a text from outside line by line and word by word, and keeps the first complaint.
class ZelGradientLines
{
public:
    /// Of the text, which has to live as long.
    explicit ZelGradientLines(QByteArrayView text);

    /// Goes to the next line that holds anything.
    bool nextLine();
    /// The next word of the line; empty at its end.
    QByteArrayView word();
    /// What is left of the line, trimmed.
    QByteArrayView rest() const { return line_; }

    /// Reads a number within the limits; false with a complaint if there is none. What isn't finite
    /// is no number.
    bool number(float &value, float least = std::numeric_limits<float>::lowest(),
                float most = std::numeric_limits<float>::max());
    bool number(int &value, int least, int most);
    bool lineEnds();

    /// Complains about the line and what was found in it. Always false.
    bool fail(const QString &expected, QByteArrayView found);
    QString error() const { return error_; }

private:
    QByteArrayView rest_;
    QByteArrayView line_;
    int lineNumber_ = 0;
    QString error_;
};
