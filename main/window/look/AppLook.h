// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QObject>
#include <QPalette>

namespace ambrelle {

class SystemAppearance;

/// What the desktop asks of windows.
struct LookWishes {
    bool dark = false;
    bool highContrast = false;
    bool reducesMotion = false;
    double textScale = 1; ///< 1 to 1.5, beyond what the resolution of the screen asks for

    static LookWishes of(const SystemAppearance& appearance);
    bool operator==(const LookWishes&) const = default;
};

/// The colours of windows and menus; every text on its ground is at least 4.5 : 1.
struct AppColours {
    QColor ground; ///< of windows and the tool bar
    QColor surface; ///< of groups, sheets and lists
    QColor field; ///< of text entries
    QColor button; ///< has an edge
    QColor text;
    QColor soft; ///< captions, counts, symbols at rest
    QColor faint; ///< placeholder text, and what cannot be chosen
    QColor accent; ///< the chief button, switches, selections, rings
    QColor onAccent;
    QColor danger; ///< what takes something away, and failures
    QColor onDanger;
    QColor track; ///< of what slides and of segments
    QColor chosenSegment;
    QColor edge; ///< of controls
    QColor hairline; ///< between things
    QColor placeholder; ///< of pictures to come, to be mixed with a ground of their own
    QColor bar; ///< of the opposite appearance, so that it is seen
    QColor barText;
    QColor barLink;
    QColor scrim; ///< behind a sheet, translucent
};

enum class TextRole { largeTitle, title, heading, body, name, cardTitle, caption, badge };

/// How the program's own windows look at present.
class AppLook final : public QObject {
    Q_OBJECT
public:
    /// Of the whole program; needs the application object.
    static AppLook& shared();

    static AppColours colours(const LookWishes& wishes);
    static QPalette palette(const LookWishes& wishes);

    /// Gives menus and windows, the open ones too, the program's style, and font and colours as wished.
    void apply(const LookWishes& wishes);

    // Of what stands on panels of others, in colours nobody tells: at least 3 : 1 on those from black to #2b2b2b and
    // from #e0e0e0 to white.
    static constexpr QColor mark{186, 107, 24}; ///< the program's own
    static constexpr QColor menuSymbol{125, 125, 125}; ///< in menus that a panel draws

    const LookWishes& wishes() const { return m_wishes; }
    const AppColours& colours() const { return m_colours; }
    QFont font(TextRole role) const;
    /// A length that grows with the text, points.
    int scaled(int points) const { return qRound(points * m_wishes.textScale); }
    /// Of a change that is shown moving; 0 where motion is not wished.
    int milliseconds(int usual) const { return m_wishes.reducesMotion ? 0 : usual; }
    double ringWidth() const { return m_wishes.highContrast ? 3 : 2; } ///< around what has the focus

Q_SIGNALS:
    void changed(); ///< after palette and font of the application

private:
    AppLook();

    bool m_applied = false;
    LookWishes m_wishes;
    AppColours m_colours;
};

} // namespace ambrelle
