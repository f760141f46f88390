#pragma once

#include <QKeySequence>
#include <QString>

/// A key as the registry keeps it: the portable text of a key sequence, or that of a mouse
/// shortcut. The text of a sequence, which takes longer to make than a QShortcut, is made when
/// somebody asks for it.
class ZelKeyText
{
public:
    ZelKeyText() = default;
    ZelKeyText(QString text)
        : text_(std::move(text))
    {}
    explicit ZelKeyText(const QKeySequence &key)
        : key_(key)
    {}

    QString text() const;
    /// Read from the text where it isn't known.
    QKeySequence key() const;
    bool isKey(const QKeySequence &key) const;
    bool operator==(const ZelKeyText &other) const;

private:
    /// Empty where only the text is known.
    QKeySequence key_;
    /// Null until it is asked for where the key is known.
    mutable QString text_;
};
