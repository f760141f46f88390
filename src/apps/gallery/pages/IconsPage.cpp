#include "IconsPage.h"

#include "LiveIconView.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelCombinedIcon>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelSvgIcon>

#include <QCoreApplication>
#include <QFile>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

QString widgetIcon(const char *name)
{
    return QStringLiteral(":/ui/widgetIcons/") + QLatin1String(name);
}

struct IconSample
{
    QString name;
    bool checkable;
    bool checked;
    bool enabled;
};

/// The buttons that show one icon, a column of the tables each.
const QList<IconSample> &samples()
{
    static const QList<IconSample> list{
        {QCoreApplication::translate("IconsPage", "push"), false, false, true},
        {QCoreApplication::translate("IconsPage", "toggle, off"), true, false, true},
        {QCoreApplication::translate("IconsPage", "toggle, on"), true, true, true},
        {QCoreApplication::translate("IconsPage", "disabled"), false, false, false},
        {QCoreApplication::translate("IconsPage", "disabled, on"), true, true, false}};
    return list;
}

QString readText(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

IconsPage::IconsPage(QWidget *parent)
    : GalleryPage(parent)
{
    addFamilies();
    addPinned();
    addPlainSvg();
    addLiveDocument();
    addStretch();
}

void IconsPage::lookChanged()
{
    view_->refresh();
}

QGridLayout *IconsPage::addIconTable(QVBoxLayout *section)
{
    auto *table = new QGridLayout;
    table->setHorizontalSpacing(16);
    table->setVerticalSpacing(4);
    int column = 1;
    for (const IconSample &sample : samples()) {
        auto *label = new QLabel(sample.name, this);
        label->setProperty("dim", true);
        table->addWidget(label, 0, column++, Qt::AlignHCenter);
    }
    table->setColumnMinimumWidth(0, fontMetrics().averageCharWidth() * 40);
    table->setColumnStretch(column, 1);
    section->addLayout(table);
    return table;
}

void IconsPage::addIconRow(QGridLayout *table, const QString &title, const QIcon &icon)
{
    const int row = table->rowCount();
    table->addWidget(new QLabel(title, this), row, 0);
    int column = 1;
    for (const IconSample &sample : samples()) {
        auto *button = new QToolButton(this);
        button->setIcon(icon);
        button->setIconSize(QSize(24, 24));
        // Only a button of this kind shows the hover picture of its icon.
        button->setAutoRaise(true);
        button->setCheckable(sample.checkable);
        button->setChecked(sample.checked);
        button->setEnabled(sample.enabled);
        button->setToolTip(title + QStringLiteral(", ") + sample.name);
        button->setAccessibleName(button->toolTip());
        watch(button, &QToolButton::clicked, QStringLiteral("clicked"));
        table->addWidget(button, row, column++, Qt::AlignHCenter);
    }
}

void IconsPage::addFamilies()
{
    QVBoxLayout *section = addSection(
        tr("Families and redirects"),
        tr("A family has a file for each mode and state; a redirect names one picture of a family. "
           "Move the mouse over the buttons, and switch the toggles."));
    QGridLayout *table = addIconTable(section);
    for (const char *name : {"checkbox.zelsvg", "radio.zelsvg", "arrow_down.zelsvg",
                             "checkbox_checked.zelsvgr", "checkbox_checked_disabled.zelsvgr"}) {
        const QString path = widgetIcon(name);
        if (QFile::exists(path))
            addIconRow(table, QLatin1String(name),
                       QIcon(HandleSvgInStyle::iconEngineForFile(path)));
    }
    ZelCombinedIcon combined;
    combined.addIconForMode(ZelStyleIcon(QStringLiteral(":/ui/icons/lock.svg")), QIcon::Normal,
                            QIcon::On);
    combined.addIconForMode(ZelStyleIcon(QStringLiteral(":/ui/icons/unlock.svg")), QIcon::Normal,
                            QIcon::Off);
    addIconRow(table, tr("combined: unlock and lock"), combined);
}

void IconsPage::addPinned()
{
    QVBoxLayout *section =
        addSection(tr("Pinned icons"), tr("A pinned icon shows one mode and state whatever the "
                                          "button's are."));
    QGridLayout *table = addIconTable(section);
    const ZelStyleIcon icon(QStringLiteral(":/ui/icons/save.svg"));
    addIconRow(table, tr("not pinned"), icon);
    addIconRow(table, QStringLiteral("active()"), icon.active());
    addIconRow(table, QStringLiteral("inactive()"), icon.inactive());
    addIconRow(table, QStringLiteral("hover()"), icon.hover());
    addIconRow(table, QStringLiteral("disabled()"), icon.disabled());
}

void IconsPage::addPlainSvg()
{
    QVBoxLayout *section = addSection(
        tr("Plain documents"), tr("An icon from a document without a theme, as it is and with its "
                                  "colours overridden."));
    QGridLayout *table = addIconTable(section);
    ZelSvgIcon plain = ZelSvgIcon::fromFile(QStringLiteral(":/ui/icons/folder.svg"));
    addIconRow(table, tr("as drawn"), plain);
    plain.overrideColor(QStringLiteral("#e08030"));
    addIconRow(table, QStringLiteral("overrideColor(\"#e08030\")"), plain);
}

void IconsPage::addLiveDocument()
{
    QVBoxLayout *section =
        addSection(tr("Live document"),
                   tr("Type a document with colour markers; messages appear in the log."));
    auto *editor = new QPlainTextEdit(this);
    editor->setObjectName(QStringLiteral("GalleryCode"));
    editor->setAccessibleName(tr("SVG document"));
    editor->setTabChangesFocus(true);
    editor->setMinimumHeight(fontMetrics().height() * 12);
    view_ = new LiveIconView(this);
    connect(editor, &QPlainTextEdit::textChanged, view_,
            [this, editor] { view_->setDocument(editor->toPlainText()); });
    editor->setPlainText(readText(QStringLiteral(":/ui/icons/eyedropper.svg")));

    auto *row = new QHBoxLayout;
    row->addWidget(editor, 1);
    row->addWidget(view_);
    section->addLayout(row);
}
