#pragma once

#include <QValidator>

/// Lets the path of a folder pass, an empty text included; every other text is invalid.
class DirValidator : public QValidator
{
    Q_OBJECT

public:
    using QValidator::QValidator;

    State validate(QString &text, int &position) const override;
};
