#pragma once

#include "ZelSecretText.h"

class QLineEdit;

/// The text of a line edit of a dialog, which leaves the line edit when the dialog closes.
class ZelSecretField
{
public:
    /// The input method is told that the text is sensitive.
    explicit ZelSecretField(QLineEdit *field);

    /// The field's text, or what was kept when the dialog closed.
    QString text() const;
    /// Empties the field, keeping its text for text() if asked to.
    void close(bool keep);
    /// Drops what was kept.
    void reopen();

private:
    QLineEdit *field_;
    ZelSecretText kept_;
};
