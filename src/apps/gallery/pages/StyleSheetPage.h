#pragma once

#include "GalleryPage.h"

class QLabel;
class QPlainTextEdit;

/// The finished sheet of the theme in force, and a copy to change: Apply puts it on the
/// application, Check finds the first broken rule, Restore takes the theme's own sheet again.
class StyleSheetPage : public GalleryPage
{
    Q_OBJECT

public:
    explicit StyleSheetPage(QWidget *parent = nullptr);

    void lookChanged() override;

private:
    QPlainTextEdit *createEditor(const QString &name);
    void apply();
    void check();
    void restore();
    void find(const QString &text);

    QPlainTextEdit *finished_;
    QPlainTextEdit *edited_;
    QLabel *verdict_;
};
