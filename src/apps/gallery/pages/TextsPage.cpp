#include "TextsPage.h"

#include <ZelCore/ZelMimeTypes>
#include <ZelWidgets/ZelClickableLineEdit>
#include <ZelWidgets/ZelComboBox>
#include <ZelWidgets/ZelComboLineEdit>
#include <ZelWidgets/ZelDirEdit>
#include <ZelWidgets/ZelFileEdit>
#include <ZelWidgets/ZelFileNameDisplay>
#include <ZelWidgets/ZelLineEdit>
#include <ZelWidgets/ZelPixmapLabel>
#include <ZelWidgets/ZelSearchLineEdit>
#include <ZelWidgets/ZelStyleIcon>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

namespace {

QFormLayout *addForm(QVBoxLayout *section)
{
    auto *form = new QFormLayout;
    form->setFieldGrowthPolicy(QFormLayout::ExpandingFieldsGrow);
    section->addLayout(form);
    return form;
}

/// A row whose label names the field for assistive technology too.
template <typename Field>
Field *addRow(QFormLayout *form, const QString &name, Field *field, bool wide = false)
{
    field->setAccessibleName(name);
    field->setSizePolicy(wide ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                         QSizePolicy::Fixed);
    form->addRow(name, field);
    return field;
}

void addChoices(QComboBox *combo)
{
    const QStringList choices{TextsPage::tr("Draft"), TextsPage::tr("Preview"),
                              TextsPage::tr("Final")};
    for (const QString &choice : choices)
        combo->addItem(choice);
}

} // namespace

TextsPage::TextsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addLineEdits();
    addChoices();
    addSearch();
    addFileFields();
    addFileNameDisplays();
    addStretch();
}

void TextsPage::addLineEdits()
{
    QFormLayout *form = addForm(addSection(
        tr("Line edits"), tr("The placeholder in italics has its colour from the sheet. The width "
                             "of a field may be asked for in characters.")));
    auto *styled = addRow(form, tr("Own placeholder"), new ZelLineEdit);
    styled->setStyleablePlaceholderText(tr("Name of the light"));
    styled->setMinimalTextWidth(30);
    auto *standard = addRow(form, tr("Standard placeholder"), new ZelLineEdit);
    standard->setStyleablePlaceholderText(tr("Not shown"));
    standard->setPlaceholderText(tr("The standard one is first"));
    standard->setMinimalTextWidth(30);
    auto *elided = addRow(form, tr("Elided placeholder"), new ZelLineEdit);
    elided->setStyleablePlaceholderText(tr("Longer than twelve characters"));
    elided->setMinimalTextWidth(12);
    auto *text = addRow(form, tr("Six characters"), new ZelLineEdit(tr("xxxxxx")));
    text->setMinimalTextWidth(6);
    auto *faulty = addRow(form, tr("Error"), new ZelLineEdit(tr("Wrong")));
    faulty->setProperty("error", true);
    auto *disabled = addRow(form, tr("Disabled"), new ZelLineEdit);
    disabled->setStyleablePlaceholderText(tr("Nothing to enter"));
    disabled->setEnabled(false);
    auto *link = addRow(form, tr("Clickable"), new ZelClickableLineEdit);
    link->setText(tr("Choose a material"));
    auto *dead = addRow(form, tr("Clickable, disabled"), new ZelClickableLineEdit);
    dead->setText(tr("No material"));
    dead->setEnabled(false);
    watch(styled, &QLineEdit::textChanged, QStringLiteral("textChanged"));
    watch(link, &ZelClickableLineEdit::clicked, QStringLiteral("clicked"));
}

void TextsPage::addChoices()
{
    QFormLayout *form = addForm(addSection(
        tr("Combo boxes"),
        tr("The wheel scrolls the page; with Control it changes the choice. A click anywhere on "
           "the second box opens its list, and another click closes it.")));
    auto *plain = addRow(form, tr("Quality"), new ZelComboBox);
    auto *clickable = addRow(form, tr("Click anywhere"), new ZelComboBox);
    auto *disabled = addRow(form, tr("Quality, disabled"), new ZelComboBox);
    for (ZelComboBox *combo : {plain, clickable, disabled})
        ::addChoices(combo);
    new ZelComboLineEdit(clickable);
    disabled->setEnabled(false);
    for (ZelComboBox *combo : {plain, clickable}) {
        watch(combo, &ZelComboBox::aboutToPopup, QStringLiteral("aboutToPopup"));
        watch(combo, &QComboBox::currentIndexChanged, QStringLiteral("currentIndexChanged"));
    }
}

void TextsPage::addSearch()
{
    QFormLayout *form = addForm(addSection(
        tr("Search fields"), tr("Escape clears the text. Alt and the down key open the menu.")));
    auto *search = addRow(form, tr("Search"), new ZelSearchLineEdit, true);
    auto *filled = addRow(form, tr("With a text"), new ZelSearchLineEdit, true);
    filled->setText(tr("glass"));
    auto *withMenu = addRow(form, tr("With a menu"), new ZelSearchLineEdit, true);
    auto *menu = new QMenu(withMenu);
    for (const QString &entry : {tr("In names"), tr("In tags")}) {
        QAction *action = menu->addAction(entry);
        action->setCheckable(true);
        action->setChecked(true);
    }
    withMenu->setMenu(menu);
    auto *disabled = addRow(form, tr("Disabled"), new ZelSearchLineEdit, true);
    disabled->setEnabled(false);
    watch(search, &QLineEdit::textChanged, QStringLiteral("textChanged"));
}

void TextsPage::addFileFields()
{
    QFormLayout *form = addForm(addSection(
        tr("File and folder"),
        tr("Neither takes characters that a system forbids in names: a file name has no slash, "
           "backslash or colon; a folder has a colon only behind the letter of a drive. The "
           "folder field proposes what there is.")));
    auto *file = addRow(form, tr("File"), new ZelFileEdit(tr("picture.png")), true);
    auto *folder = addRow(form, tr("Folder"), new ZelDirEdit(QStringLiteral("/usr/share")), true);
    watch(file, &QLineEdit::textChanged, QStringLiteral("textChanged"));
    watch(folder, &QLineEdit::textChanged, QStringLiteral("textChanged"));
}

void TextsPage::addFileNameDisplays()
{
    QVBoxLayout *section = addSection(
        tr("File names"),
        tr("Drop a file from a file manager, or the picture on the right; the second field takes "
           "PNG and JPEG files only. The context menu copies the path or shows the file."));
    auto *row = new QHBoxLayout;
    section->addLayout(row);
    auto *column = new QVBoxLayout;
    row->addLayout(column, 1);
    QFormLayout *form = addForm(column);
    using Display = ZelFileNameDisplay;
    auto *any = new Display(Display::Open | Display::Refresh | Display::Remove | Display::Replace);
    addRow(form, tr("Any file"), any, true);
    auto *pictures = new Display(QStringLiteral("wood.png"), Display::Open | Display::Remove);
    addRow(form, tr("Pictures"), pictures, true);
    pictures->setDropPattern(QStringLiteral("*.png;*.jpg;*.jpeg"));
    pictures->setOpenToolTip(tr("Open a picture"));
    auto *disabled = new Display(QStringLiteral("locked.png"), Display::Open | Display::Remove);
    addRow(form, tr("Disabled"), disabled, true);
    disabled->setEnabled(false, false);
    for (Display *display : {any, pictures}) {
        watch(display, &Display::openClicked, QStringLiteral("openClicked"));
        watch(display, &Display::refreshClicked, QStringLiteral("refreshClicked"));
        watch(display, &Display::removeClicked, QStringLiteral("removeClicked"));
        watch(display, &Display::replaceClicked, QStringLiteral("replaceClicked"));
        watch(display, &Display::filenameDropped, QStringLiteral("filenameDropped"));
        connect(display, &Display::filenameDropped, display, &Display::setFilename);
        connect(display, &Display::removeClicked, display, &Display::clearFilename);
    }
    auto *picture = new ZelPixmapLabel(QSize(64, 64));
    picture->setAccessibleName(tr("A picture to drag"));
    picture->setToolTip(tr("Drag it onto a file name"));
    picture->setDragMimeData(ZelMimeTypes::TEXTURE, "/pictures/brick.png");
    picture->setHighlightHover(true);
    row->addWidget(picture, 0, Qt::AlignTop);
}
