#include "ZelKeyText.h"

QString ZelKeyText::text() const
{
    if (text_.isNull() && !key_.isEmpty())
        text_ = key_.toString(QKeySequence::PortableText);
    return text_;
}

QKeySequence ZelKeyText::key() const
{
    return key_.isEmpty() ? QKeySequence::fromString(text_, QKeySequence::PortableText) : key_;
}

bool ZelKeyText::isKey(const QKeySequence &key) const
{
    return key_.isEmpty() ? text_ == key.toString(QKeySequence::PortableText) : key_ == key;
}

bool ZelKeyText::operator==(const ZelKeyText &other) const
{
    return (!key_.isEmpty() && key_ == other.key_) || text() == other.text();
}
