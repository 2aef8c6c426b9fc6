#pragma once

#include "disc/DSMenuColours.h"
#include "values/Node.h"

#include <array>
#include <cstddef>
#include <optional>

namespace vantrel {

/// The 16 colours of a menu.
class Palette : public NodeHandle<CPaletteNode, eNodePalette>
{
public:
    using NodeHandle::NodeHandle;
    using Colours = std::array<RGBEntry, 16>;

    Colours colours() const
    {
        Colours colours;
        if (object())
            (void)object()->GetPalette(colours.data()); // can't fail on an array
        return colours;
    }
    Status colours(const Colours& colours) const
    {
        return Put(&CPaletteNode::SetPalette, colours.data());
    }

    /// One of them, counted from 0; none beyond the 16th.
    std::optional<RGBEntry> colour(std::size_t index) const
    {
        const Colours all = colours();
        return object() && index < all.size() ? std::optional(all[index]) : std::nullopt;
    }
    Status colour(std::size_t index, RGBEntry value) const
    {
        Colours all = colours();
        if (index >= all.size())
            return status::kBadColour;
        all[index] = value;
        return colours(all);
    }
};

/// What a button shows while it is selected and while it is activated. A menu has three.
class ButtonScheme : public NodeHandle<CButtonSchemeNode, eNodeButtonScheme>
{
public:
    using NodeHandle::NodeHandle;

    /// Asking settles the second emphasis, as `CButtonSchemeNode::GetColourInfo` tells.
    SPUColourInfo selected() const { return Both().selected; }
    SPUColourInfo activated() const { return Both().activated; }
    /// `status::kBadColour` or `status::kBadContrast` for a number above 15.
    Status set(const SPUColourInfo& selected, const SPUColourInfo& activated) const
    {
        return object() ? object()->SetColourInfo(selected, activated) : status::kNullPointer;
    }

private:
    struct Pair
    {
        SPUColourInfo selected;
        SPUColourInfo activated;
    };
    Pair Both() const
    {
        Pair pair;
        if (object())
            (void)object()->GetColourInfo(&pair.selected, &pair.activated); // can't fail
        return pair;
    }
};

/// The subpicture colours of a menu's overlay layer.
class SubpictureColours : public NodeHandle<CSPUColourNode, eNodeSPUColours>
{
public:
    using NodeHandle::NodeHandle;

    SPUColourInfo colours() const { return Ask(&CSPUColourNode::GetColourInfo); }
    Status colours(const SPUColourInfo& value) const
    {
        return Put(&CSPUColourNode::SetColourInfo, value);
    }
};

} // namespace vantrel
