#pragma once

#include <QValidator>

/// Lets a file name pass, an empty text included; every other text is invalid.
class FileValidator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString &text, int &position) const override;
};
