#pragma once

#include <ZelCore/ZelColor>
#include <ZelCore/zelcore_export.h>

#include <QObject>

/// Knows how linear colours become colours on the display, and whether they are to.
///
/// One object for the whole application, for the GUI thread. The two switches start from the
/// settings ("enable_gamma_correction" and "enable_gamma_correction_input" of the group "colors",
/// both on if nothing is stored); storing them is the business of who sets them.
class ZELCORE_EXPORT ZelGammaPolicy : public QObject
{
    Q_OBJECT

public:
    /// Never null; made at the first call.
    static ZelGammaPolicy *get();

    /// Whether colours are shown with display gamma.
    bool isGammaCorrectionEnabled() const { return enabled_; }
    /// Whether numbers that the user enters and reads are display values.
    bool areValuesGammaCorrected() const { return correctValues_; }
    /// 2.2 at first.
    float gamma() const { return gamma_; }
    /// The display exponent, 1 divided by gamma.
    float getInvGamma() const { return 1.0f / gamma_; }

    /// The display colour of a linear one, and back: the RGB channels to the power getInvGamma()
    /// or gamma(), whatever the switches say. The result is RGB and keeps the name. Channels below
    /// 0 keep their sign.
    ZelColor gammaCorrect(const ZelColor &color) const;
    ZelColor inverseGammaCorrect(const ZelColor &color) const;

public Q_SLOTS:
    void setEnableGammaCorrection(bool enable);
    void setGammaCorrectValues(bool correct);
    /// Refuses with a warning what isn't a finite number above 0.
    void setGamma(float gamma);

Q_SIGNALS:
    /// Emitted on change only.
    void gammaCorrectChanged(bool enabled);
    void gammaChanged(float gamma);
    void gammaCorrectValuesChanged(bool correct);

private:
    ZelGammaPolicy();

    bool enabled_;
    bool correctValues_;
    float gamma_ = 2.2f;
};
