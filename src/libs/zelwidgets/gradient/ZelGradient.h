#pragma once

#include <ZelCore/BlendCurve>
#include <ZelCore/ZelColor>
#include <ZelWidgets/ZelGradientStop>
#include <ZelWidgets/zelwidgets_export.h>

#include <QImage>
#include <QList>
#include <QObject>

/// An editable gradient on the line from 0 to 1: colour stops, and opacity stops where it has that
/// feature. The model behind ZelGradientDisplay and ZelGradientView, for the GUI thread.
///
/// Every edit, here or through a stop's handle, takes effect and is told at once. Nothing reports
/// an error: bad input gives a null stop or is dropped.
///
/// @code
/// ZelGradient gradient(ZelGradient::Alpha);
/// gradient.addColorStop(0.0f, black);
/// gradient.addColorStop(1.0f, white).setSlopeIn(0.0f);
/// gradient.addAlphaStop(0.5f, 0.2f);
/// const QImage row = gradient.paint(width);
/// @endcode
class ZELWIDGETS_EXPORT ZelGradient : public QObject
{
    Q_OBJECT

public:
    enum Feature {
        Alpha = 1, ///< takes opacity stops
        Hdr = 2,   ///< tells editors to offer the brightness of colour stops
    };
    Q_DECLARE_FLAGS(Features, Feature)
    Q_FLAG(Features)

    using const_iterator = QList<ZelGradientStop>::const_iterator;

    /// Without any stop.
    explicit ZelGradient(QFlags<Feature> features = {});
    ~ZelGradient() override;

    bool hasAlpha() const { return hasAlpha_; }
    bool hasHdrColors() const { return hasHdrColors_; }
    /// Whether values are interpolated between stops (true at first) or held up to the next.
    bool blend() const { return blend_; }

    /// Opacity stops first, each kind by location.
    const_iterator begin() const { return stops_.cbegin(); }
    const_iterator end() const { return stops_.cend(); }
    const_iterator cbegin() const { return stops_.cbegin(); }
    const_iterator cend() const { return stops_.cend(); }
    int stops() const { return int(stops_.size()); }
    int alphaStops() const { return alphaCount_; }
    int colorStops() const { return stops() - alphaCount_; }
    /// By index within the kind; null outside.
    ZelGradientStop alphaStop(int index) const;
    ZelGradientStop colorStop(int index) const;
    /// The neighbour of the same kind; null at the ends and for a stop that isn't in the list.
    ZelGradientStop before(const ZelGradientStop &stop) const;
    ZelGradientStop after(const ZelGradientStop &stop) const;

    /// Null if there is none, or if the one that was selected has been removed.
    ZelGradientStop selected() const { return selected_; }
    /// In the whole list, or -1.
    int getIndexOfSelected() const;

    /// Fill the interval from the stop of this index to the next. False, with nothing written, if
    /// there is no such interval.
    bool getAlphaCurve(int index, orv::color::BlendCurve &curve, float &fromAlpha,
                       float &toAlpha) const;
    bool getColorCurve(int index, orv::color::BlendCurve &curve, ZelColor &from,
                       ZelColor &to) const;
    /// White with fewer than two colour stops. Interpolated in RGB, without gamma.
    ZelColor computeColor(float location) const;
    /// 1 with fewer than two opacity stops.
    float computeAlpha(float location) const;
    /// One row from 0 to 1 in Format_ARGB32, as it is to be shown (display gamma included); null
    /// below a width of 2. A single stop of a kind gives its value to the whole row.
    QImage paint(int width) const;

    /// In the middle of the largest gap between colour stops, or at 0 with fewer than two.
    ZelGradientStop addColorStop();
    /// In the colour that the gradient has there already.
    ZelGradientStop addColorStop(float location);
    /// Behind the colour stops on the same location.
    ZelGradientStop addColorStop(float location, const ZelColor &color);
    ZelGradientStop addColorStop(float location, const ZelColor &color, float gain);
    /// The same for opacity stops, but before the ones on the same location; null without Alpha.
    ZelGradientStop addAlphaStop();
    ZelGradientStop addAlphaStop(float location);
    ZelGradientStop addAlphaStop(float location, float alpha);
    /// Leaves the selection alone: if it was this stop, it is null from now on. Foreign and null
    /// stops are ignored.
    void removeStop(ZelGradientStop stop);
    void clearStops();
    /// Takes over the other's stops (as copies), blend mode and Alpha feature.
    void reset(const ZelGradient &other);
    /// Mirrors locations, slopes and the order of stops on one location.
    void reverse();
    /// The stops of each kind at equal distances from 0 to 1; a lone one stays.
    void distributeEvenly();

    void setBlend(bool blend);
    void setSelected(const ZelGradientStop &stop);
    /// Tells of the selection even if there was none.
    void clearSelection();

Q_SIGNALS:
    void gradientChanged();
    void selectionChanged(ZelGradientStop selected);

private:
    friend class ZelGradientStop;

    const_iterator alphaEnd() const { return stops_.cbegin() + alphaCount_; }
    static ZelColor blend(float t, const ZelColor &a, const ZelColor &b);
    int findAlphaIndex(float location) const;
    int findColorIndex(float location) const;
    static float findLargestSpanCenter(const_iterator first, const_iterator last);
    void paintBlended(int width, unsigned int *pixels) const;
    void paintSolid(int width, unsigned int *pixels) const;
    void insertAtHead(const ZelGradientStop &stop);
    void insertAtTail(const ZelGradientStop &stop);
    void sortStops();

    bool blend_ = true;
    bool hasAlpha_;
    bool hasHdrColors_;
    QList<ZelGradientStop> stops_;
    int alphaCount_ = 0;
    ZelGradientStop selected_;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ZelGradient::Features)
