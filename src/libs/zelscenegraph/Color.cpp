#include "Color.h"

#include "ColorContent.h"

#include <algorithm>
#include <cmath>

namespace zelsg {

namespace {

float validWeight(float weight)
{
    return std::isfinite(weight) && weight > 0.0f ? weight : 0.0f;
}

} // namespace

Color::Color()
    : content_(std::make_shared<Content>())
{}

Color::Color(const ZelColor &color)
    : content_(std::make_shared<Content>(color))
{}

Color::Color(float red, float green, float blue)
    : Color(ZelColor(ZelColor::Space::RGB, red, green, blue))
{}

Color::Color(const Color &other) = default;
Color::Color(Color &&other) noexcept = default;
Color &Color::operator=(const Color &other) = default;
Color &Color::operator=(Color &&other) noexcept = default;
Color::~Color() = default;

const Color::Content &Color::content() const
{
    static const Content white;
    return content_ ? *content_ : white;
}

Color::Content &Color::content()
{
    if (!content_)
        content_ = std::make_shared<Content>();
    return *content_;
}

void Color::detach()
{
    content_ = std::make_shared<Content>(std::as_const(*this).content());
}

Color Color::detachedClone() const
{
    Color clone = *this;
    clone.detach();
    return clone;
}

bool Color::isSharedWith(const Color &other) const
{
    return content_ && content_ == other.content_;
}

bool Color::isMultiColor() const
{
    return content().multi;
}

void Color::setMultiColor(bool multi)
{
    if (!multi) {
        clearMultiColors();
    } else if (Content &own = content(); !own.multi) {
        own.name = own.parts.front().color.name();
        own.multi = true;
    }
}

void Color::clearMultiColors()
{
    Content &own = content();
    if (!own.multi)
        return;
    Content::Part part = own.activePart();
    if (!own.name.empty())
        part.color.setName(own.name);
    own = Content();
    own.parts.front() = part;
}

int Color::nColors() const
{
    return int(content().parts.size());
}

int Color::activeIndex() const
{
    return content().active;
}

void Color::setActiveIndex(int index)
{
    if (Content &own = content(); own.has(index))
        own.active = index;
}

ZelColor Color::getActive() const
{
    return getColor(activeIndex());
}

ZelColor Color::getColor(int index) const
{
    const Content &own = content();
    return own.has(index) ? own.parts[size_t(index)].color : ZelColor();
}

void Color::setColor(const ZelColor &color, NameOp nameOp)
{
    setColor(color, activeIndex(), nameOp);
}

void Color::setColor(const ZelColor &color, int index, NameOp nameOp)
{
    Content &own = content();
    if (!own.has(index))
        return;
    ZelColor &present = own.parts[size_t(index)].color;
    const bool takesName = nameOp == NameOp::Take && !color.name().empty();
    const std::string name = takesName ? color.name() : present.name();
    present = color;
    present.setName(name);
}

float Color::getWeight(int index) const
{
    const Content &own = content();
    return own.has(index) ? own.parts[size_t(index)].weight : 0.0f;
}

void Color::setWeight(float weight, int index)
{
    if (Content &own = content(); own.has(index))
        own.parts[size_t(index)].weight = validWeight(weight);
}

void Color::appendColor(const ZelColor &color, float weight)
{
    setMultiColor(true);
    content().parts.push_back({color, validWeight(weight)});
}

void Color::appendColor(const Color &other)
{
    // A copy: the other may be this one.
    const auto added = other.content().parts;
    setMultiColor(true);
    auto &parts = content().parts;
    parts.insert(parts.end(), added.begin(), added.end());
}

void Color::deleteColor(int index)
{
    Content &own = content();
    if (!own.has(index) || own.parts.size() == 1)
        return;
    own.parts.erase(own.parts.begin() + index);
    if (index < own.active || !own.has(own.active))
        --own.active;
}

void Color::setColors(orv::Span<const ZelColor> colors)
{
    if (colors.empty())
        return;
    std::vector<Content::Part> parts;
    for (const ZelColor &color : colors)
        parts.push_back({color});
    setMultiColor(true);
    Content &own = content();
    own.parts = std::move(parts);
    own.active = std::min(own.active, int(own.parts.size()) - 1);
}

std::string Color::getColorName() const
{
    const Content &own = content();
    return own.multi ? own.name : own.parts.front().color.name();
}

void Color::setColorName(const std::string &name)
{
    Content &own = content();
    if (own.multi)
        own.name = name;
    else
        own.parts.front().color.setName(name);
}

std::string Color::getName(int index) const
{
    const Content &own = content();
    return own.has(index) ? own.parts[size_t(index)].color.name() : std::string();
}

void Color::setName(const std::string &name, int index)
{
    if (Content &own = content(); own.has(index))
        own.parts[size_t(index)].color.setName(name);
}

bool Color::operator==(const Color &other) const
{
    const Content &a = content();
    const Content &b = other.content();
    const auto samePart = [&a](const Content::Part &x, const Content::Part &y) {
        return x.weight == y.weight && x.color == y.color &&
               (!a.multi || x.color.name() == y.color.name());
    };
    return a.multi == b.multi && a.active == b.active &&
           std::equal(a.parts.begin(), a.parts.end(), b.parts.begin(), b.parts.end(), samePart);
}

} // namespace zelsg
