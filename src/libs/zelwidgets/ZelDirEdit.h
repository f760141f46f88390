#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLineEdit>

/// A field for the path of a folder, which proposes the folders that there are. Characters that
/// some system doesn't allow in a path can't be typed or pasted.
class ZELWIDGETS_EXPORT ZelDirEdit : public QLineEdit
{
    Q_OBJECT

public:
    explicit ZelDirEdit(const QString &text);

private:
    void setup(const QString &text);
    void completerActivated(const QString &path);
};
