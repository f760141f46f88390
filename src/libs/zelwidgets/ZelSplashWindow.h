#pragma once

#include <ZelWidgets/ZelAbstractProgressBar>
#include <ZelWidgets/zelwidgets_export.h>

#include <QElapsedTimer>
#include <QPixmap>
#include <QPoint>
#include <QString>
#include <QWidget>

/// The window of an application's start: a picture with a progress bar, a status and a legal line.
/// It is on the screen when the constructor returns, modal for the application, and stays for a
/// second at least. It is told its progress through ZelAbstractProgressBar:
///
///     auto *splash = new ZelSplashWindow(ZelSplashWindow::BuiltIn, QPoint(), nullptr, false,
///                                        QPixmap(), QPoint());
///     ZelAbstractProgressBar *bar = splash;
///     bar->setStatus(tr("Reading materials..."));
///     bar->setProgress(0.4F);
///     bar->close_window();
///
/// close_window() deletes the window once it is closed; so does a modal dialog that gets the focus
/// meanwhile. It paints when the event loop runs.
class ZELWIDGETS_EXPORT ZelSplashWindow : public QWidget, public ZelAbstractProgressBar
{
    Q_OBJECT
    /// The text below the bar, of any number of lines. "%1" in what is set becomes the current
    /// year. At first a copyright of the application's organisation, or of the application.
    Q_PROPERTY(QString legalLine READ legalLine WRITE setLegalLine)

public:
    /// Which picture is shown. Any other value gives a plain ground in the window colour.
    enum SplashType : int {
        BuiltIn = 0,
        BuiltInAlternative = 1, ///< the same picture
        OwnPicture = 2          ///< the one that is passed in
    };
    Q_ENUM(SplashType)

    /// The window comes up in the middle of the screen at the point; for (0, 0), of the primary
    /// screen. A bar position of (0, 0) is (130, 320). The label is a mark of an early version.
    explicit ZelSplashWindow(const SplashType &type, const QPoint &where = QPoint(),
                             QWidget *parent = nullptr, bool showLabel = false,
                             const QPixmap &picture = QPixmap(),
                             const QPoint &barPosition = QPoint());
    ~ZelSplashWindow() override;

    /// The line as it is shown.
    QString legalLine() const;
    /// The status as it is shown, elided to the width that there is.
    QString status() const;
    float progress() const;
    QSize sizeHint() const override;

public Q_SLOTS:
    void setLegalLine(const QString &line);

protected:
    void setStatus(const QString &status) override;
    void setProgress(float progress) override;
    void close_window() override;
    /// Tries again what came too early.
    void closeAgain();
    void onFocusChanged(QWidget *old, QWidget *now);

    void paintEvent(QPaintEvent *event) override;

private:
    static QScreen *screenFor(const QPoint &where, const QWidget *parent);
    QPixmap createPicture(SplashType type, const QPixmap &picture) const;
    void paintBar(QPainter *painter) const;
    void paintTexts(QPainter *painter) const;

    QPixmap picture_;
    QPixmap label_;
    QElapsedTimer shownTime_;
    float progress_ = 0;
    QString status_;
    QString legalLine_;
    QPoint barPosition_;
};
