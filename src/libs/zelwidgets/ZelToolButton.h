#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QCursor>
#include <QIcon>
#include <QPixmap>
#include <QToolButton>
#include <QVariant>

#include <memory>

class ZelToolButtonPrivate;

/// The tool button of the application. The style sheet selects its look by the object name,
/// "FlatButton" or "BorderButton", and by the dynamic property "hasMenuArrow".
///
///     auto *button = new ZelToolButton(ZelToolButton::Border, panel);
///     button->setIcon(ZelStyleIcon(QStringLiteral(":/ui/icons/add.svg")));
///     button->setToolTip(tr("Add a light"));
///
/// Icons that draw themselves, as the themed ones do, are drawn at any size; of pictures with fixed
/// sizes the largest that fits is taken. A button without a text has its tool tip as its accessible
/// name. Alt and the Down key open the menu of a button that has one.
class ZELWIDGETS_EXPORT ZelToolButton : public QToolButton
{
    Q_OBJECT

public:
    enum BorderStyle : int {
        Flat = 0,
        Border = 1 ///< with a border and a face at rest
    };
    Q_ENUM(BorderStyle)

    explicit ZelToolButton(BorderStyle style = Flat, QWidget *parent = nullptr);
    /// A flat button for the action, whose icon and visibility it follows.
    explicit ZelToolButton(QAction *action, QWidget *parent = nullptr);
    ~ZelToolButton() override;

    /// Builds a button that looks like a ZelPushButton of the rank "Secondary" and the dimension
    /// "Medium" and that takes the focus by click and by the Tab key. It belongs to the parent, or
    /// to the caller if there is none.
    static ZelToolButton *createZelNextToolButton(BorderStyle style, QWidget *parent = nullptr);
    static ZelToolButton *createZelNextToolButton(QAction *action, QWidget *parent = nullptr);

    /// True for an icon that has no sizes of its own because it draws itself.
    bool hasSvgIcon() const;
    bool iconCanScale() const;
    /// Whether the icon alone is drawn into a square. The argument is not used.
    bool imageSquared(bool unused = true) const;
    QVariant userData() const;

    /// Appends to the object name, for rules of the style sheet that are meant for this button.
    void addToObjectName(const QString &suffix);
    void setDefaultAction(QAction *action);
    void setUserData(const QVariant &data);
    /// Paints the icon and nothing else, without a face, text or arrow; a frame shows the focus.
    void setIconOnlyMode(bool iconOnly);
    /// With the icon alone: draws it into a square of the smaller side.
    void setImageSquared(bool squared);
    /// Leaves the text out of the width of the size hint and elides it to the width of the icon.
    void setTextWidthIgnore(bool ignore);
    /// With the icon alone: lets it fill the whole widget.
    void setExpandIfIconOnly(bool expand);
    /// Treats the icon as one that can be drawn at any size.
    void setIconCanScale(bool canScale);
    /// Size of the drawn icon in percent of iconSize(), from 0 to 1000; what is outside counts as
    /// the nearest of them. With the text under the icon the icon stands in the middle of a cell of
    /// the full size.
    void setIconScalePercentage(int percentage);
    /// Whether a button with a menu shows an arrow.
    void setPaintMenuArrow(bool paint);
    /// With the text under the icon: keeps the text at the lower edge, however high the button is.
    void setForceTextAtBottom(bool force);
    void setUseHandCursorOnMouseOver(bool use);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// To be connected to the signal changed() of an action: takes the action's icon and
    /// visibility. In a tool bar it is the entry of the button that is shown or hidden. Does
    /// nothing if it isn't called by a signal of an action.
    void slotActionChanged();

protected:
    /// Fills the option with what is drawn, the icon at its scaled size, and returns the full size
    /// of the icon.
    virtual QSize initStyleOptionInternal(QStyleOptionToolButton *option) const;
    void setObjectName(const QString &name);

    bool event(QEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    bool isSqueezed(const QStyleOptionToolButton &option) const;
    void repolish();
    void paintIconOnly(const QStyleOptionToolButton &option);
    QIcon drawnIcon(const QStyleOptionToolButton &option, QSize cell) const;
    QPixmap lookupPixmap(const QStyleOptionToolButton &option, QSize size) const;
    QSize findBestIconMatchSize(QSize wanted) const;
    QSize correctedSizeHint(const QStyleOptionToolButton &option, QSize fullSize) const;

    std::unique_ptr<ZelToolButtonPrivate> d_;
};
