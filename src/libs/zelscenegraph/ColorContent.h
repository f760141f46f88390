#pragma once

#include "Color.h"

#include <vector>

/// What the handles of one colour share. If it isn't multi, there is one part, and its name is the
/// name of the whole colour.
struct zelsg::Color::Content
{
    struct Part
    {
        ZelColor color;
        float weight = 1.0f;
    };

    Content() = default;
    explicit Content(const ZelColor &color)
        : parts{{color}}
    {}

    bool has(int index) const { return index >= 0 && size_t(index) < parts.size(); }
    Part &activePart() { return parts[size_t(active)]; }

    bool multi = false;
    int active = 0;
    /// Of a multi-colour.
    std::string name;
    std::vector<Part> parts = {{}};
};
