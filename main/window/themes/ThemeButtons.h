// SPDX-License-Identifier: MIT

#pragma once

#include "window/themes/ThemeWork.h"

#include <QPointer>
#include <QWidget>

#include <map>

namespace ambrelle {

class Button;
class Progress;

/// The three things that can be done with a theme.
class ThemeButtons final : public QWidget {
    Q_OBJECT
public:
    struct State {
        bool hasWallpaper = true;
        std::optional<ThemeOperation> working; ///< then nothing else can be asked for
        QString theme{}; ///< its title

        bool operator==(const State&) const = default;
    };

    explicit ThemeButtons(QWidget* parent = nullptr);

    void setState(const State& state);

Q_SIGNALS:
    void pressed(ambrelle::ThemeOperation operation);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void placeRing();

    std::map<ThemeOperation, Button*> m_buttons; // from above
    std::optional<State> m_state;
    Progress* m_ring;
    QPointer<QWidget> m_focused; // before everything was disabled
};

} // namespace ambrelle
