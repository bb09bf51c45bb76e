// SPDX-License-Identifier: MIT

#pragma once

#include "window/themes/ThemeActions.h"

#include <QWidget>

class QComboBox;

namespace ambrelle {

class AccentPicker;
class Button;
class KindTiles;
class TextLabel;
class ThemeHead;
struct ThemeFacts;

/// What is to be known of a theme, its accent, and where its widgets would come.
class ThemeDetails final : public QWidget {
    Q_OBJECT
public:
    ThemeDetails(ThemeAccent& accents, Clock& clock, QWidget* parent = nullptr);

    void setTheme(const ThemeFacts& facts, bool isOnDesktop);
    /// Keeps what is chosen as long as its screen is there.
    void setScreens(const QList<ScreenInfo>& screens);
    ThemeTarget target() const; ///< that was chosen

    static constexpr int inset = 4; ///< beside what is shown, for the marks of what has the focus

    ThemeHead& head() { return *m_head; }
    AccentPicker& accent() { return *m_accent; }

Q_SIGNALS:
    void counterpartWanted(ambrelle::Skin skin);

private:
    ThemeHead* m_head;
    Button* m_counterpart;
    QWidget* m_accentPart;
    AccentPicker* m_accent;
    TextLabel* m_count;
    KindTiles* m_kinds;
    QWidget* m_targetPart;
    QComboBox* m_target;
    std::optional<Skin> m_partner;
    QStringList m_screens; ///< identifiers, as listed
};

} // namespace ambrelle
