#pragma once

#include <ZelCore/ZelColor>
#include <ZelWidgets/zelwidgets_export.h>

#include <QWidget>

class ZelColorWidget;

/// The old and the new colour side by side. A click takes one of them; the menu copies its numbers,
/// as hex, as rgb() or as floats. The numbers are display values if that is what the user enters
/// and reads elsewhere (ZelGammaPolicy::areValuesGammaCorrected()).
class ZELWIDGETS_EXPORT ZelColorViewer : public QWidget
{
    Q_OBJECT

public:
    /// Old and new are the same at first.
    explicit ZelColorViewer(const ZelColor &color, QWidget *parent = nullptr);

    void setOldColor(const ZelColor &color);
    ZelColor oldColor() const;
    ZelColor color() const;

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// The new colour. Emits nothing.
    void setColor(ZelColor color);

Q_SIGNALS:
    /// The user clicked the old or the new colour, or dropped a new one.
    void colorSelected(ZelColor color);
    void doubleClick(ZelColor color);

private:
    ZelColorWidget *addField(const QString &text, const ZelColor &color);
    void showMenu(ZelColorWidget *field, const QPoint &place);

    ZelColorWidget *old_;
    ZelColorWidget *new_;
};
