// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Ticket.h"
#include "model/Skin.h"

#include <QPointer>
#include <QWidget>

#include <optional>

class QColorDialog;

namespace ambrelle {

class AccentSwatch;
class Clock;
class TextLabel;
class ThemeAccent;

/// The accents that a skin can have, as a row of swatches, the last for any other colour; or the sentence that it has
/// no other than its own. A choice is stored at once.
class AccentPicker final : public QWidget {
    Q_OBJECT
public:
    /// An accent to look at; nothing: the skin's own.
    struct Trial {
        std::optional<QColor> accent;

        bool operator==(const Trial&) const = default;
    };

    AccentPicker(ThemeAccent& accents, Clock& clock, QWidget* parent = nullptr);

    void setSkin(Skin skin);
    /// The accent that pointer or keyboard rest on and that is not the stored one; none: show what is stored.
    const std::optional<Trial>& trial() const { return m_trial; }

Q_SIGNALS:
    void trialChanged();
    void storing(); ///< a choice is about to be stored

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    AccentSwatch* addSwatch();
    void showStored();
    void moveFocus(const AccentSwatch* from, int steps);
    void choose(const AccentSwatch& swatch);
    void openDialog();
    void store(const std::optional<QColor>& accent, Skin skin);
    void judge();
    void consider(const std::optional<Trial>& accent);
    void tryOut(const std::optional<Trial>& trial);

    ThemeAccent& m_accents;
    Clock& m_clock;
    Skin m_skin = Skin::paper;
    TextLabel* m_sentence;
    QList<AccentSwatch*> m_swatches;
    QPointer<QObject> m_at; ///< the swatch where pointer or keyboard are
    QPointer<QColorDialog> m_dialog;
    bool m_isShowing = false; ///< what is stored, and nobody chooses
    std::optional<Trial> m_considered; ///< to be tried soon
    std::optional<Trial> m_trial;
    Ticket m_soon;
};

} // namespace ambrelle
