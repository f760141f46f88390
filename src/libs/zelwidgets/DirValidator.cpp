#include "DirValidator.h"

#include "ZelFileNames.h"

QValidator::State DirValidator::validate(QString &text, int &) const
{
    return ZelFileNames::isFolderPath(text) ? Acceptable : Invalid;
}
