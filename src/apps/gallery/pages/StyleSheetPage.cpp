#include "StyleSheetPage.h"

#include "StyleFile.h"

#include <ZelWidgets/ZelPushButton>
#include <ZelWidgets/ZelStyleSheets>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QVBoxLayout>

StyleSheetPage::StyleSheetPage(QWidget *parent)
    : GalleryPage(parent)
    , verdict_(new QLabel(this))
{
    QVBoxLayout *top = addSection(tr("Finished sheet"),
                                  tr("What the application's style sheet is now, with the theme's "
                                     "palette put in and the font rule in front."));
    auto *search = new QLineEdit(this);
    search->setPlaceholderText(tr("Find in the sheet; Enter finds the next place"));
    search->setAccessibleName(tr("Find in the sheet"));
    search->setClearButtonEnabled(true);
    connect(search, &QLineEdit::textChanged, this, &StyleSheetPage::find);
    connect(search, &QLineEdit::returnPressed, this, [this, search] {
        // Beyond the last place the search starts again.
        if (!finished_->find(search->text()))
            find(search->text());
    });
    top->addWidget(search);
    finished_ = createEditor(tr("Finished sheet"));
    finished_->setReadOnly(true);
    top->addWidget(finished_);

    QVBoxLayout *bottom = addSection(
        tr("Editable copy"),
        tr("Change it and apply it, or leave out a brace and check it: a dialog shows the "
           "broken rule. The check tries one rule after the other, as blank lines "
           "separate them, which takes some seconds; its line numbers are those of the "
           "style file."));
    edited_ = createEditor(tr("Editable copy"));
    bottom->addWidget(edited_);
    auto *row = new QHBoxLayout;
    const struct
    {
        QString text;
        QString rank;
        void (StyleSheetPage::*action)();
    } buttons[] = {{tr("&Apply"), QStringLiteral("Primary"), &StyleSheetPage::apply},
                   {tr("&Check"), QStringLiteral("Secondary"), &StyleSheetPage::check},
                   {tr("&Restore"), QStringLiteral("Tertiary"), &StyleSheetPage::restore}};
    for (const auto &entry : buttons) {
        auto *button = new ZelPushButton(entry.text, this);
        button->setProperty("rank", entry.rank);
        connect(button, &QPushButton::clicked, this, entry.action);
        row->addWidget(button);
    }
    verdict_->setWordWrap(true);
    row->addWidget(verdict_, 1);
    bottom->addLayout(row);
    lookChanged();
}

QPlainTextEdit *StyleSheetPage::createEditor(const QString &name)
{
    auto *editor = new QPlainTextEdit(this);
    editor->setAccessibleName(name);
    editor->setLineWrapMode(QPlainTextEdit::NoWrap);
    editor->setTabChangesFocus(true);
    editor->setMinimumHeight(fontMetrics().height() * 12);
    editor->setObjectName(QStringLiteral("GalleryCode"));
    return editor;
}

void StyleSheetPage::lookChanged()
{
    const QString sheet = qApp->styleSheet();
    finished_->setPlainText(sheet);
    edited_->setPlainText(sheet);
}

void StyleSheetPage::find(const QString &text)
{
    finished_->moveCursor(QTextCursor::Start);
    const bool found = text.isEmpty() || finished_->find(text);
    verdict_->setText(found ? QString() : tr("The sheet does not hold \"%1\".").arg(text));
}

void StyleSheetPage::apply()
{
    const QString text = edited_->toPlainText();
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(StyleFile::themeInForce(), text, false);
    finished_->setPlainText(qApp->styleSheet());
    verdict_->setText(tr("Applied."));
    log(tr("style sheet applied: %1 characters").arg(text.size()));
}

void StyleSheetPage::check()
{
    verdict_->setText(tr("Checking…"));
    verdict_->repaint();
    const QString running = qApp->styleSheet();
    const QString name = QStringLiteral("gallery-check");
    QString sheet = edited_->toPlainText();
    ZelStyleSheets::appendStylesheetCheck(sheet, name);
    qApp->setStyleSheet(sheet);
    const bool sound = ZelStyleSheets::verifyStylesheetApplied(sheet, name);
    // The search leaves the sheet at what it tried last.
    qApp->setStyleSheet(running);
    verdict_->setText(sound ? tr("The whole sheet is sound.") : tr("The sheet has a broken rule."));
    log(sound ? tr("style sheet is sound") : tr("style sheet is broken"));
}

void StyleSheetPage::restore()
{
    ZelStyleSheets::parseStyleSheetAndSetAsAppRoot(StyleFile::themeInForce(), QString(), false);
    lookChanged();
    verdict_->setText(tr("The theme's own sheet is in force."));
}
