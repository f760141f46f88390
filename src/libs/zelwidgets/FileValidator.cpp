#include "FileValidator.h"

#include "ZelFileNames.h"

QValidator::State FileValidator::validate(QString &text, int &) const
{
    return ZelFileNames::isFileName(text) ? Acceptable : Invalid;
}
