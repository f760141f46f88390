#pragma once

#include <ZelCore/Span>
#include <ZelCore/ZelColor>
#include <ZelSceneGraph/zelscenegraph_export.h>

#include <QMetaType>

#include <memory>
#include <string>

class QDataStream;

namespace zelsg {

/// What becomes of a sub-colour's name when its colour is replaced.
enum class NameOp : int {
    Keep = 0, ///< the present name stays
    Take = 1, ///< the new colour's name, if it has one
};

/// A colour of the scene: one colour, or a list of sub-colours of which one is active. Each
/// sub-colour has a name and a weight.
///
/// An object is a handle: copies are the same colour, and what is done through one shows in all,
/// until detach() gives a handle a colour of its own. A colour that was moved from is white.
/// Handles may be copied in any thread; the colour itself isn't protected.
///
/// There is always at least one sub-colour, and one colour is a list of one that doesn't count as
/// multi-colour. Indices go from 0; reading out of range gives white, an empty name and a weight
/// of 0, and writing there does nothing.
class ZELSCENEGRAPH_EXPORT Color
{
public:
    /// White.
    Color();
    /// Takes the name as well.
    Color(const ZelColor &color);
    /// RGB, 0 to 1.
    Color(float red, float green, float blue);
    Color(const Color &other);
    Color(Color &&other) noexcept;
    Color &operator=(const Color &other);
    Color &operator=(Color &&other) noexcept;
    ~Color();

    /// Gives this handle storage of its own, with the same content.
    void detach();
    Color detachedClone() const;
    /// Whether both are handles of the same colour.
    bool isSharedWith(const Color &other) const;

    bool isMultiColor() const;
    /// True makes a list of the one colour; false is clearMultiColors().
    void setMultiColor(bool multi);
    /// The active sub-colour becomes the one colour. It keeps the name of the whole colour, or its
    /// own if that is empty.
    void clearMultiColors();

    int nColors() const;
    int activeIndex() const;
    void setActiveIndex(int index);

    /// Sub-colours with their names.
    ZelColor getActive() const;
    ZelColor getColor(int index) const;
    /// Replaces the active or a given sub-colour; its weight stays.
    void setColor(const ZelColor &color, NameOp nameOp);
    void setColor(const ZelColor &color, int index, NameOp nameOp);

    /// Not below 0; 1 at first.
    float getWeight(int index) const;
    /// A weight that isn't finite or is below 0 counts as 0.
    void setWeight(float weight, int index);

    /// Appending makes the colour a list; the active index stays.
    void appendColor(const ZelColor &color, float weight = 1.0f);
    /// Appends all sub-colours of the other, with names and weights.
    void appendColor(const Color &other);
    /// The last sub-colour stays. If the active one goes, the one that follows becomes active, or
    /// the one in front at the end of the list.
    void deleteColor(int index);
    /// Makes a list of these colours, each of weight 1; the active index stays if it can. Does
    /// nothing if there are none.
    void setColors(orv::Span<const ZelColor> colors);

    /// The name of the whole colour, in UTF-8. If there is one colour, its name is the same.
    std::string getColorName() const;
    void setColorName(const std::string &name);
    /// The name of a sub-colour.
    std::string getName(int index) const;
    void setName(const std::string &name, int index);

    /// Whether the content is the same: one colour or list, active index, and for each sub-colour
    /// the colour (ZelColor's ==) and the weight; in lists the names of sub-colours too. The name
    /// of the whole colour doesn't count.
    bool operator==(const Color &other) const;
    bool operator!=(const Color &other) const { return !(*this == other); }

private:
    struct Content;
    friend ZELSCENEGRAPH_EXPORT QDataStream &operator<<(QDataStream &stream, const Color &color);
    friend ZELSCENEGRAPH_EXPORT QDataStream &operator>>(QDataStream &stream, Color &color);

    const Content &content() const;
    Content &content();

    std::shared_ptr<Content> content_;
};

/// Writes and reads the whole content, whatever the stream's version and precision. Reading gives
/// the handle a colour of its own. Data that end early or aren't such a colour set the stream's
/// status and leave the colour as it is; so do components that aren't finite.
ZELSCENEGRAPH_EXPORT QDataStream &operator<<(QDataStream &stream, const Color &color);
ZELSCENEGRAPH_EXPORT QDataStream &operator>>(QDataStream &stream, Color &color);

} // namespace zelsg

Q_DECLARE_METATYPE(zelsg::Color)
