#include "ZelSecretText.h"

ZelSecretText::~ZelSecretText()
{
    clear();
}

QString ZelSecretText::text() const
{
    return QString::fromUtf16(text_.data(), qsizetype(text_.size()));
}

void ZelSecretText::setText(const QString &text)
{
    clear();
    // In one piece, so that no part stays behind where the text was before it grew.
    text_.assign(reinterpret_cast<const char16_t *>(text.utf16()), std::size_t(text.size()));
}

void ZelSecretText::clear()
{
    // Volatile: the compiler may not leave out the writing because nothing reads it.
    volatile char16_t *data = text_.data();
    for (std::size_t i = 0; i < text_.size(); ++i)
        data[i] = 0;
    text_.clear();
}
