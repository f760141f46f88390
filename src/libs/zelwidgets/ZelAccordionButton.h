#pragma once

#include <ZelWidgets/ZelCombinedIcon>
#include <ZelWidgets/zelwidgets_export.h>

#include <QPushButton>

class QCheckBox;

/// The clickable header of a collapsible section: its text, an arrow, and a check box if it is
/// asked for. It is checked while the section is open.
///
/// With a settings key the state is read from the store's unnamed group at construction and
/// written at each change.
class ZELWIDGETS_EXPORT ZelAccordionButton : public QPushButton
{
    Q_OBJECT

public:
    /// The last argument is the state if the settings hold none.
    ZelAccordionButton(const QString &text, const QString &settingsKey, bool open);

    /// Moves the button's text onto a check box inside the button.
    void addCustomCheckBox();
    /// Null without a custom check box.
    QCheckBox *customCheckBox() const;
    /// False without a custom check box.
    bool isCustomChecked() const;
    /// Sets the check box and emits nothing.
    void setCustomChecked(bool checked);
    void setEnableCustomCheckBox(bool enabled);

    bool isOpen() const;
    /// Opens or closes: emits widgetVisible() and stores the state.
    void setOpen(bool open);

    QSize sizeHint() const override;
    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The section's content is to be shown or hidden; emitted before the first show as well.
    void widgetVisible(bool visible);
    /// The user clicked the custom check box.
    void customChecked(bool value);

protected:
    void initIcon();

    void changeEvent(QEvent *event) override;
    bool event(QEvent *event) override;
    /// Return and Enter go the way of a click.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void customCheckBoxClicked(bool checked);
    void placeCustomCheckBox();
    void announceState();
    QString shownText() const;

    bool firstShow_ = true;
    QString settingsKey_;
    QCheckBox *customCheckBox_ = nullptr;
    ZelCombinedIcon icon_;
};
