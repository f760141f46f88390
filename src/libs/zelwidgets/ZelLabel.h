#pragma once

#include <ZelWidgets/zelwidgets_export.h>

#include <QLabel>

class QHelpEvent;
class QTextDocument;

/// A label that reports clicks, can elide its text, and can wrap it with a height that is right at
/// every width.
///
/// Eliding and the custom word wrap both set the size policy; of the two the later call decides.
class ZELWIDGETS_EXPORT ZelLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ZelLabel(QWidget *parent = nullptr);
    explicit ZelLabel(const QString &text);

    /// A label in bold, which belongs to the caller.
    static ZelLabel *makeBold(const QString &text);

    /// Turns the word wrap on or off; with it on the label takes any width and the height that its
    /// text needs there.
    void enableCustomWordWrap(bool enable);
    /// Lets the label be narrower than its text, of which then the beginning is shown, and the
    /// whole in the tool tip. Meant for plain text.
    void setElideMode(bool elide);
    void setBold(bool bold);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

Q_SIGNALS:
    /// The left mouse button was released.
    void click();
    /// The right mouse button was pressed. Not emitted while the text can be selected.
    void rightClick();
    void doubleClick();

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;

private:
    bool isCustomWrapped() const { return hasCustomWordWrap_ && wordWrap(); }
    bool hasMouseText() const;
    const QTextDocument *document() const;
    QString elidedText() const;
    void showWholeText(QHelpEvent *event);
    void followTextHeight();

    bool isElided_ = false;
    bool hasCustomWordWrap_ = false;
};
