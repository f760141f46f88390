#include "ZelSecretField.h"

#include <QLineEdit>

ZelSecretField::ZelSecretField(QLineEdit *field)
    : field_(field)
{
    field->setInputMethodHints(field->inputMethodHints() | Qt::ImhSensitiveData);
}

QString ZelSecretField::text() const
{
    return kept_.isEmpty() ? field_->text() : kept_.text();
}

void ZelSecretField::close(bool keep)
{
    if (keep && !field_->text().isEmpty())
        kept_.setText(field_->text());
    else if (!keep)
        kept_.clear();
    // Takes the undo history along.
    field_->setText(QString());
}

void ZelSecretField::reopen()
{
    kept_.clear();
}
