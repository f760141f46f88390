#pragma once

#include "TestCase.h"

#include <ZelCore/ZelGammaPolicy>
#include <ZelWidgets/HexValueLineEdit>
#include <ZelWidgets/ZelColorConversion>
#include <ZelWidgets/ZelColorDialog>

#include <QAction>
#include <QDialogButtonBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStackedWidget>

using Space = ZelColor::Space;

inline const ZelColor teal(Space::RGB, 0.1F, 0.5F, 0.4F);

/// A dialog with its parts and what it told its owner.
struct Tool
{
    explicit Tool(const zelsg::Color &color = teal, const QString &name = QStringLiteral("Teal"))
        : dialog(std::make_unique<ZelColorDialog>(nullptr, color, name, nullptr))
        , changed(dialog.get(), &ZelColorDialog::colorChanged)
        , finished(dialog.get(), &QDialog::finished)
    {}

    template <typename Part>
    Part *part() const
    {
        return dialog->findChild<Part *>();
    }
    void show()
    {
        dialog->show();
        dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(dialog.get()));
    }
    QLineEdit *nameEdit() const
    {
        for (QLabel *label : dialog->findChildren<QLabel *>()) {
            if (label->text() == QStringLiteral("Name"))
                return qobject_cast<QLineEdit *>(label->buddy());
        }
        return nullptr;
    }
    QAbstractButton *button(const QString &toolTip) const
    {
        for (QAbstractButton *button : dialog->findChildren<QAbstractButton *>()) {
            if (button->toolTip() == toolTip)
                return button;
        }
        return nullptr;
    }
    QAction *action(const QString &text) const
    {
        for (QAction *action : dialog->findChildren<QAction *>()) {
            if (action->text() == text)
                return action;
        }
        return nullptr;
    }
    /// The stack that holds a widget.
    QStackedWidget *stackOf(QWidget *page) const
    {
        return qobject_cast<QStackedWidget *>(page->parentWidget());
    }
    void press(QDialogButtonBox::StandardButton which) const
    {
        part<QDialogButtonBox>()->button(which)->click();
    }
    void typeHex(const QString &text) const
    {
        auto *edit = part<HexValueLineEdit>();
        edit->setFocus();
        edit->clear();
        QTest::keyClicks(edit, text);
        QTest::keyClick(edit, Qt::Key_Return);
    }
    ZelColor active() const { return dialog->getColor().getActive(); }
    QString hex() const { return part<HexValueLineEdit>()->text(); }

    std::unique_ptr<ZelColorDialog> dialog;
    QSignalSpy changed;
    QSignalSpy finished;
};

inline QString onDisplay(const ZelColor &color)
{
    return toQColor(ZelGammaPolicy::get()->gammaCorrect(color)).name();
}

inline bool isSame(const ZelColor &one, const ZelColor &other)
{
    return one.space() == other.space() && one.components() == other.components();
}
