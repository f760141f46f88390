#include "ZelFileEdit.h"

#include "FileValidator.h"

ZelFileEdit::ZelFileEdit()
    : ZelFileEdit(QString())
{}

ZelFileEdit::ZelFileEdit(const QString &text)
    : QLineEdit(text)
{
    setValidator(new FileValidator(this));
}
