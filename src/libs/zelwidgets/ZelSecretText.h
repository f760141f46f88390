#pragma once

#include <QString>

#include <string>

/// A text that is overwritten in memory when it is cleared or dies. Copies that are taken out of
/// it share nothing with it and are their holder's to clear.
class ZelSecretText
{
public:
    ZelSecretText() = default;
    ~ZelSecretText();
    ZelSecretText(const ZelSecretText &) = delete;
    ZelSecretText &operator=(const ZelSecretText &) = delete;

    QString text() const;
    bool isEmpty() const { return text_.empty(); }
    void setText(const QString &text);
    void clear();

private:
    std::u16string text_;
};
