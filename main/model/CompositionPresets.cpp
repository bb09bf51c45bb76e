// SPDX-License-Identifier: MIT

#include "model/CompositionPresets.h"

namespace ambrelle {

namespace {

using enum WidgetKind;
using enum WidgetScale;

constexpr Spot paperSpots[] = {{clock, -640, -280}, {weather, -270, -280}, {calendar, 100, -280}, {events, 290, -280},
    {processes, 480, -280}, {cpu, -640, -90}, {memory, -450, -90}, {disk, -260, -90}, {battery, -70, -90},
    {network, 120, -90}, {photo, 490, -90}, {nowPlaying, -640, 100}, {downloads, -270, 100}, {quote, 100, 100}};

constexpr Spot neonSpots[] = {{clock, -219, -380, large}, {calendar, -660, -380}, {events, -470, -380},
    {processes, 300, -380}, {battery, 490, -380}, {cpu, -660, -110}, {network, -470, -110}, {weather, 120, -110},
    {memory, 490, -110}, {disk, -660, 100}, {nowPlaying, -470, 100}, {quote, 120, 100}, {photo, 490, 100}};

constexpr Spot bauhausSpots[] = {{clock, -650, -370, large}, {calendar, -170, -370}, {weather, 40, -370},
    {battery, 430, -370}, {cpu, -650, -110}, {memory, -460, -110}, {network, -170, -110}, {disk, 220, -110},
    {events, 430, -110}, {nowPlaying, -650, 100}, {processes, -260, 100}, {downloads, -70, 100}, {quote, 130, 100}};

constexpr Spot groveSpots[] = {{clock, -219, -150, large}, {weather, -175, -405}, {calendar, -660, -5},
    {cpu, -583, -205}, {memory, -372, -351}, {disk, 203, -351}, {battery, 413, -205}, {events, 490, -5},
    {network, -380, 100}, {nowPlaying, 30, 100}, {processes, -660, 190}, {downloads, 490, 190}};

constexpr Spot aeroSpots[] = {{clock, -664, -380, large}, {weather, -200, -335}, {calendar, 180, -385},
    {battery, 370, -345}, {events, 494, -160}, {cpu, -664, -120}, {memory, -470, -90}, {network, -250, -110},
    {disk, 130, -130}, {processes, 310, -120}, {nowPlaying, -560, 110}, {downloads, -170, 130}, {quote, 30, 120},
    {photo, 420, 90}};

constexpr Spot classicSpots[] = {{clock, -575, -330}, {memory, -200, -330}, {calendar, 180, -330},
    {processes, 370, -330}, {weather, -575, -140}, {cpu, -200, -140}, {disk, -10, -140}, {battery, 180, -140},
    {events, 370, -140}, {nowPlaying, -575, 50}, {network, -200, 50}, {downloads, 180, 50}, {photo, 370, 50}};

constexpr Spot overdriveSpots[] = {{clock, -640, -360, huge}, {cpu, -80, -360}, {memory, 110, -360}, {disk, 300, -360},
    {battery, 490, -360}, {network, -640, -80}, {weather, -260, -80}, {processes, 110, -60}, {events, 300, -80},
    {calendar, 490, -60}, {nowPlaying, -640, 130}, {quote, -260, 130}, {downloads, 110, 150}, {photo, 300, 130}};

constexpr Spot hifiSpots[] = {{clock, -175, -370}, {weather, -175, -190}, {network, -175, -10}, {nowPlaying, -175, 170},
    {cpu, -395, -370}, {memory, -395, -190}, {battery, -395, -10}, {calendar, -585, -280}, {events, -585, -100},
    {disk, 225, -370}, {processes, 225, -190}, {downloads, 225, -10}, {photo, 415, -280}};

constexpr Spot grooveSpots[] = {{clock, -219, -110, large}, {calendar, -660, 85}, {cpu, -583, -150},
    {memory, -372, -322}, {events, -85, -385}, {battery, 203, -322}, {processes, 413, -150}, {downloads, 490, 85},
    {weather, -465, 120}, {disk, -85, 120}, {nowPlaying, 115, 120}};

constexpr Spot chalkSpots[] = {{clock, -650, -350, large}, {calendar, -150, -375}, {weather, 70, -330},
    {battery, 470, -370}, {events, -660, -95}, {cpu, -450, -60}, {memory, -240, -120}, {network, -20, -120},
    {disk, 400, -140}, {processes, -620, 120}, {nowPlaying, -380, 130}, {downloads, 30, 110}, {quote, 240, 90}};

constexpr Spot questSpots[] = {{clock, -219, -380, large}, {battery, -640, -370}, {calendar, -440, -330},
    {events, 260, -330}, {processes, 460, -370}, {cpu, -610, -120}, {memory, -390, -90}, {network, -175, -100},
    {disk, 230, -90}, {downloads, 440, -130}, {weather, -560, 120}, {nowPlaying, -150, 140}, {quote, 250, 110}};

constexpr Spot glassSpots[] = {{clock, -664, -385}, {weather, -664, -205}, {calendar, -664, -25}, {events, -484, -25},
    {battery, -664, 155}, {photo, -484, 155}, {nowPlaying, 314, -385}, {cpu, 314, -205}, {memory, 494, -205},
    {network, 314, -25}, {disk, 314, 155}, {processes, 494, 155}};

constexpr Spot cockpitSpots[] = {{calendar, -555, -340}, {cpu, -365, -340}, {clock, -175, -340}, {memory, 195, -340},
    {battery, 385, -340}, {network, -555, -150}, {disk, -175, -150}, {processes, 15, -150}, {weather, 205, -150},
    {events, -555, 40}, {downloads, -365, 40}, {nowPlaying, -175, 40}, {quote, 205, 40}};

constexpr Spot apolloSpots[] = {{clock, -664, -390}, {cpu, -664, -190}, {memory, -484, -190}, {network, -664, 10},
    {calendar, -664, 210}, {events, -484, 210}, {weather, 314, -390}, {disk, 314, -190}, {battery, 494, -190},
    {nowPlaying, 314, 10}, {processes, 314, 210}, {downloads, 494, 210}};

constexpr Spot abyssSpots[] = {{clock, -600, -350}, {cpu, -180, -350}, {weather, 60, -350}, {memory, 460, -350},
    {disk, -600, -120}, {battery, -380, -120}, {network, -160, -120}, {processes, 250, -120}, {calendar, 460, -120},
    {downloads, -600, 110}, {nowPlaying, -380, 110}, {events, 40, 110}, {quote, 280, 110}};

constexpr Spot atlasSpots[] = {{clock, -640, -360}, {weather, -80, -340}, {calendar, 300, -370}, {disk, 490, -340},
    {cpu, -640, -140}, {memory, -440, -120}, {network, -220, -110}, {battery, 180, -140}, {processes, 400, -120},
    {events, -640, 90}, {nowPlaying, -430, 100}, {downloads, -30, 110}, {quote, 200, 90}};

constexpr Spot kyotoSpots[] = {{clock, -560, -340}, {weather, -170, -340}, {calendar, 220, -340}, {events, 410, -340},
    {cpu, -560, -130}, {memory, -370, -130}, {disk, -180, -130}, {battery, 10, -130}, {network, 200, -130},
    {processes, -560, 80}, {downloads, -370, 80}, {nowPlaying, -180, 80}, {photo, 200, 80}};

constexpr Spot corkSpots[] = {{clock, -620, -370}, {cpu, -200, -350}, {memory, 0, -380}, {weather, 210, -360},
    {calendar, -650, -150}, {network, -440, -140}, {disk, -60, -160}, {events, 150, -130}, {processes, 360, -150},
    {battery, -620, 70}, {photo, -420, 90}, {nowPlaying, -210, 80}, {downloads, 180, 70}};

constexpr Spot polarSpots[] = {{clock, -460, -290}, {weather, -90, -290}, {calendar, 280, -290}, {cpu, -460, -100},
    {memory, -270, -100}, {nowPlaying, -80, -100}, {battery, 290, -100}, {network, -460, 90}, {disk, -90, 90},
    {events, 100, 90}, {downloads, 290, 90}};

constexpr Spot monoSpots[] = {{clock, -560, -340, large}, {weather, -20, -340}, {calendar, 340, -340}, {cpu, -560, -80},
    {memory, -380, -80}, {disk, -200, -80}, {battery, -20, -80}, {network, 160, -80}, {nowPlaying, -560, 120},
    {processes, -200, 120}, {events, -20, 120}, {downloads, 160, 120}};

constexpr Spot fieldSpots[] = {{clock, -580, -340}, {cpu, -210, -340}, {memory, -20, -340}, {weather, 170, -340},
    {calendar, -580, -130}, {network, -390, -130}, {disk, -20, -130}, {battery, 170, -130}, {events, 360, -130},
    {processes, -580, 80}, {downloads, -390, 80}, {nowPlaying, -200, 80}, {quote, 170, 80}};

constexpr Spot obsidianSpots[] = {{clock, -600, -380, large}, {weather, -140, -330}, {battery, 230, -300},
    {cpu, -600, -140}, {memory, -410, -110}, {disk, -220, -80}, {network, -30, -110}, {calendar, 340, -90},
    {nowPlaying, -600, 80}, {events, -230, 120}};

constexpr Spot midnightSpots[] = {{cpu, -700, -330}, {memory, -700, -120}, {disk, -700, 90}, {network, -450, -280},
    {processes, -450, -70}, {battery, -450, 140}, {clock, -20, -330}, {weather, -20, -120}, {nowPlaying, -20, 90},
    {calendar, 410, -280}, {events, 410, -70}, {downloads, 410, 140}};

constexpr Spot pulseSpots[] = {{clock, -175, -430}, {cpu, -565, -143}, {memory, -375, -201}, {disk, -180, -231},
    {downloads, 10, -231}, {battery, 205, -201}, {focus, 395, -143}, {weather, -570, 80}, {nowPlaying, -175, 110},
    {network, 220, 80}};

constexpr Spot prismSpots[] = {{clock, -620, -380}, {cpu, -250, -330}, {memory, -60, -290}, {nowPlaying, 130, -250},
    {weather, -620, -150}, {disk, -240, -110}, {battery, -50, -70}, {events, 140, -40}, {quote, 330, 0},
    {network, -620, 60}, {photo, -250, 100}};

constexpr Spot carbonSpots[] = {{clock, -218, -200, large}, {cpu, -410, -330}, {memory, -600, -200}, {disk, -600, -10},
    {battery, 240, -330}, {downloads, 430, -200}, {processes, 430, -10}, {nowPlaying, -540, 190}, {weather, -175, 190},
    {network, 190, 190}};

constexpr Spot velvetSpots[] = {{photo, -480, -360, large}, {clock, -240, -330, large}, {quote, 230, -360},
    {sky, 230, -170}, {events, 420, -170}, {calendar, -460, -110}, {weather, -260, -80}, {battery, 110, 20},
    {cpu, 300, 30}, {nowPlaying, -460, 110}};

// Slate and Lumen share a grid.
const Composition& desk()
{
    static const Composition composition =
        Composition::tiled({{clock, 0, 0}, {weather, 2, 0}, {battery, 4, 0}, {cpu, 0, 1}, {memory, 1, 1},
            {nowPlaying, 2, 1}, {events, 4, 1}, {network, 0, 2}, {disk, 2, 2}, {downloads, 3, 2}, {processes, 4, 2}});
    return composition;
}

} // namespace

std::span<const Spot> presetSpots(Skin skin)
{
    switch (skin) {
    case Skin::paper: return paperSpots;
    case Skin::neon: return neonSpots;
    case Skin::bauhaus: return bauhausSpots;
    case Skin::grove: return groveSpots;
    case Skin::aero: return aeroSpots;
    case Skin::classic: return classicSpots;
    case Skin::overdrive: return overdriveSpots;
    case Skin::hifi: return hifiSpots;
    case Skin::groove: return grooveSpots;
    case Skin::chalk: return chalkSpots;
    case Skin::quest: return questSpots;
    case Skin::glass: return glassSpots;
    case Skin::cockpit: return cockpitSpots;
    case Skin::apollo: return apolloSpots;
    case Skin::abyss: return abyssSpots;
    case Skin::atlas: return atlasSpots;
    case Skin::kyoto: return kyotoSpots;
    case Skin::cork: return corkSpots;
    case Skin::polar: return polarSpots;
    case Skin::mono: return monoSpots;
    case Skin::field:
    case Skin::fieldDark: return fieldSpots;
    case Skin::obsidian: return obsidianSpots;
    case Skin::midnight: return midnightSpots;
    case Skin::pulse: return pulseSpots;
    case Skin::prism: return prismSpots;
    case Skin::carbon: return carbonSpots;
    case Skin::velvet: return velvetSpots;
    case Skin::slate:
    case Skin::lumen: break;
    }
    return desk().spots;
}

} // namespace ambrelle
