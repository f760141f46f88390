#include "ShortcutsPage.h"

#include <ZelWidgets/ZelShortcutEditorWidget>

#include <QVBoxLayout>

ShortcutsPage::ShortcutsPage(QWidget *parent)
    : GalleryPage(parent)
{
    QVBoxLayout *section = addSection(
        tr("Shortcuts and gestures"),
        tr("All keys and mouse gestures that the gallery and the library know. Return on a row "
           "records a new one, Delete clears it; \"Interface\" holds the keys of this window. "
           "Changes are in force once they are applied, and are kept for the next start."));
    editor_ = new ZelShortcutEditorWidget(this);
    section->addWidget(editor_, 1);
    const auto say = [this](const QString &text) {
        return [this, text] {
            log(text);
        };
    };
    connect(editor_, &ZelShortcutEditorWidget::applied, this, say(tr("Shortcuts: applied")));
    connect(editor_, &ZelShortcutEditorWidget::cancelled, this, say(tr("Shortcuts: cancelled")));
}

void ShortcutsPage::showEvent(QShowEvent *event)
{
    GalleryPage::showEvent(event);
    // Other pages may have brought shortcuts along meanwhile.
    if (!editor_->hasChanges())
        editor_->reload();
}
