#include "IconsPage.h"

#include "LiveIconView.h"

#include <ZelWidgets/HandleSvgInStyle>
#include <ZelWidgets/IconColorTheme>
#include <ZelWidgets/ZelCombinedIcon>
#include <ZelWidgets/ZelStyleIcon>
#include <ZelWidgets/ZelSvgIcon>

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

void IconsPage::addIconRow(QVBoxLayout *section, const QString &title, const QIcon &icon)
{
    auto *row = new QHBoxLayout;
    auto *label = new QLabel(title, this);
    label->setMinimumWidth(fontMetrics().averageCharWidth() * 44);
    row->addWidget(label);
    const struct
    {
        QString name;
        bool checkable;
        bool enabled;
    } buttons[] = {
        {tr("push"), false, true}, {tr("toggle"), true, true}, {tr("disabled"), false, false}};
    for (const auto &kind : buttons) {
        auto *button = new QToolButton(this);
        button->setIcon(icon);
        button->setIconSize(QSize(24, 24));
        button->setCheckable(kind.checkable);
        button->setEnabled(kind.enabled);
        button->setToolTip(title + QStringLiteral(", ") + kind.name);
        button->setAccessibleName(button->toolTip());
        watch(button, &QToolButton::clicked, QStringLiteral("clicked"));
        row->addWidget(button);
    }
    row->addStretch(1);
    section->addLayout(row);
}

void IconsPage::addFamilies()
{
    QVBoxLayout *section = addSection(
        tr("Families and redirects"),
        tr("A family has a file for each mode and state; a redirect names one picture of a family. "
           "Move the mouse over the buttons, and switch the toggles on."));
    for (const char *name : {"checkbox.zelsvg", "radio.zelsvg", "arrow_down.zelsvg",
                             "checkbox_checked.zelsvgr", "checkbox_checked_disabled.zelsvgr"}) {
        const QString path = widgetIcon(name);
        if (QFile::exists(path))
            addIconRow(section, QLatin1String(name),
                       QIcon(HandleSvgInStyle::iconEngineForFile(path)));
    }
    ZelCombinedIcon combined;
    combined.addIconForMode(ZelStyleIcon(QStringLiteral(":/ui/icons/lock.svg")), QIcon::Normal,
                            QIcon::On);
    combined.addIconForMode(ZelStyleIcon(QStringLiteral(":/ui/icons/unlock.svg")), QIcon::Normal,
                            QIcon::Off);
    addIconRow(section, tr("combined: unlock and lock"), combined);
}

void IconsPage::addPinned()
{
    QVBoxLayout *section =
        addSection(tr("Pinned icons"), tr("A pinned icon shows one mode and state whatever the "
                                          "button's are."));
    const ZelStyleIcon icon(QStringLiteral(":/ui/icons/save.svg"));
    addIconRow(section, tr("not pinned"), icon);
    addIconRow(section, QStringLiteral("active()"), icon.active());
    addIconRow(section, QStringLiteral("inactive()"), icon.inactive());
    addIconRow(section, QStringLiteral("hover()"), icon.hover());
    addIconRow(section, QStringLiteral("disabled()"), icon.disabled());
}

void IconsPage::addPlainSvg()
{
    QVBoxLayout *section = addSection(
        tr("Plain documents"), tr("An icon from a document without a theme, as it is and with its "
                                  "colours overridden."));
    ZelSvgIcon plain = ZelSvgIcon::fromFile(QStringLiteral(":/ui/icons/folder.svg"));
    addIconRow(section, tr("as drawn"), plain);
    plain.overrideColor(QStringLiteral("#e08030"));
    addIconRow(section, QStringLiteral("overrideColor(\"#e08030\")"), plain);
}

void IconsPage::addLiveDocument()
{
    QVBoxLayout *section =
        addSection(tr("Live document"),
                   tr("Type a document with colour markers; messages appear in the log."));
    auto *editor = new QPlainTextEdit(this);
    editor->setAccessibleName(tr("SVG document"));
    editor->setTabChangesFocus(true);
    editor->setMinimumHeight(fontMetrics().height() * 12);
    auto *view = new LiveIconView(this);
    connect(editor, &QPlainTextEdit::textChanged, view,
            [editor, view] { view->setDocument(editor->toPlainText()); });
    editor->setPlainText(readText(QStringLiteral(":/ui/icons/eyedropper.svg")));

    auto *row = new QHBoxLayout;
    row->addWidget(editor, 1);
    row->addWidget(view);
    section->addLayout(row);
}
