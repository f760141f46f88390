#pragma once

#include <ZelWidgets/Accordion>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class QLayout;
class QVBoxLayout;
class ZelAccordionButton;
class ZelAccordionContentContainer;
class ZelAnimationEdit;

/// A section with a clickable header that shows or hides its content.
///
///     auto *section = new ZelAccordionWidget(tr("Shadows"), QStringLiteral("panel.shadows"),
///                                            Accordion::Open);
///     section->addWidget(new ZelCheckBox(tr("Soft"), &soft));
class ZELWIDGETS_EXPORT ZelAccordionWidget : public QWidget
{
    Q_OBJECT

public:
    /// With a settings key the state is remembered; the last argument is what it starts with.
    ZelAccordionWidget(const QString &text, const QString &settingsKey,
                       Accordion::State state = Accordion::Closed);

    /// All of these go to the layout of the content, which takes the widgets over.
    void addLayout(QLayout *layout);
    void addSpacing(int size);
    void addWidget(QWidget *widget, int stretch = 0, Qt::Alignment alignment = {});
    void setSpacing(int spacing);
    QVBoxLayout *getLayout() const;

    ZelAccordionButton *button() const;
    void open();
    void close();
    /// Enables or disables the header; the content is not touched.
    void setEnableWidget(bool enabled);
    void setTitle(const QString &title);

    QSize sizeHint() const override;
    /// As wide as the content needs, also while it is closed.
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The header asks for the content to be shown or hidden.
    void widgetVisible(bool visible);
    /// The content was shown or hidden.
    void visibilityChanged(bool b);

private:
    ZelAccordionButton *button_;
    ZelAccordionContentContainer *container_;
    QVBoxLayout *contentLayout_;
};

/// A section that passes on the animation updates of the editors in it.
class ZELWIDGETS_EXPORT ZelAnimationAccordionWidget : public ZelAccordionWidget
{
    Q_OBJECT

public:
    /// The first flag is not used; the second tells whether the section starts open.
    ZelAnimationAccordionWidget(const QString &text, const QString &settingsKey, bool unused,
                                bool open);

public Q_SLOTS:
    /// Emits updateAnimation() with its arguments.
    void animationUpdated(ZelAnimationEdit *edit, uint id, bool allowMerge);

Q_SIGNALS:
    void updateAnimation(ZelAnimationEdit *edit, uint id, bool allowMerge);
};
