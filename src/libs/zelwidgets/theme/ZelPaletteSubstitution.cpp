#include "ZelPaletteSubstitution.h"

#include <QDebug>
#include <QStringBuilder>

#include <algorithm>

namespace ZelStylePalette {
namespace {

constexpr qsizetype largestText = 32 * 1024 * 1024;

// The text with one key's value put in so far, and the place in the source to go on from.
class Substitution
{
public:
    Substitution(const QString &text, const QString &key, const QString &value)
        : text_(text)
        , key_(key)
        , value_(value)
    {}

    QString run()
    {
        qsizetype at = find(0);
        if (at < 0)
            return text_;
        result_.reserve(text_.size() + text_.size() / 8);
        for (; at >= 0; at = find(scan_)) {
            const qsizetype keyEnd = at + key_.size();
            if (isLeftAlone(text_, keyEnd)) {
                scan_ = keyEnd;
                continue;
            }
            result_ += QStringView(text_).mid(copied_, at - copied_);
            result_ += value_;
            copied_ = keyEnd;
            scan_ = keyEnd + std::max<qsizetype>(0, key_.size() - value_.size());
            passOverKeysInsideValue();
            if (result_.size() + text_.size() - copied_ > largestText)
                return tooLarge();
            if (scan_ >= text_.size())
                break;
        }
        return result_ += QStringView(text_).mid(copied_);
    }

private:
    // Keys begin with a character that is rare in a sheet; to look for that alone is quickest.
    qsizetype find(qsizetype from) const
    {
        const QStringView text(text_);
        const qsizetype last = text.size() - key_.size();
        for (qsizetype at = text.indexOf(key_.front(), from); at >= 0 && at <= last;
             at = text.indexOf(key_.front(), at + 1)) {
            if (std::equal(key_.cbegin(), key_.cend(), text.cbegin() + at))
                return at;
        }
        return -1;
    }

    // The scan would go on inside the value if that is longer than the key.
    void passOverKeysInsideValue()
    {
        if (value_.size() <= key_.size())
            return;
        const QString seam = value_ % QStringView(text_).mid(copied_, key_.size() + 1);
        qsizetype from = key_.size();
        for (qsizetype at = seam.indexOf(key_, from); at >= 0 && at < value_.size();
             at = seam.indexOf(key_, from)) {
            from = at + key_.size();
            if (!isLeftAlone(seam, from))
                warnOnce();
        }
        scan_ += std::max<qsizetype>(0, from - value_.size());
    }

    void warnOnce()
    {
        if (!warned_)
            qWarning() << "Palette value would be replaced without end, key" << key_;
        warned_ = true;
    }

    QString tooLarge() const
    {
        qWarning() << "Palette value makes the stylesheet too large, key" << key_;
        return text_;
    }

    const QString &text_;
    const QString &key_;
    const QString &value_;
    QString result_;
    qsizetype copied_ = 0;
    qsizetype scan_ = 0;
    bool warned_ = false;
};

} // namespace

// The character that decides is the second one behind the key.
bool isLeftAlone(QStringView text, qsizetype keyEnd)
{
    if (keyEnd + 1 >= text.size())
        return false;
    const QChar character = text.at(keyEnd + 1);
    return character.isLetterOrNumber() || character == QLatin1Char('-') ||
           character == QLatin1Char('_');
}

QString substituteKey(const QString &text, const QString &key, const QString &value)
{
    return key.isEmpty() ? text : Substitution(text, key, value).run();
}

} // namespace ZelStylePalette
