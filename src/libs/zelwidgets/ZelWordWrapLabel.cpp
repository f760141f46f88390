#include "ZelWordWrapLabel.h"

ZelWordWrapLabel::ZelWordWrapLabel(const QString &text)
    : ZelLabel(text)
{
    enableCustomWordWrap(true);
}
