// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/GlobalSpace.h"
#include "platform/WindowHost.h"

#include <QTimer>

class QScreen;

namespace ambrelle {

/// The connected screens as the toolkit knows them, and the global space they span.
class ScreenList final : public QObject {
    Q_OBJECT
public:
    ScreenList();

    QList<ScreenInfo> screens() const; ///< read afresh: what docks leave free is not always announced
    GlobalSpace space() const; ///< while no screen is connected, as it was before

Q_SIGNALS:
    void changed(); ///< the list differs from the last one told, and has been quiet for a moment

private:
    void follow(QScreen* screen);
    void compare();

    QTimer m_quiet;
    QList<ScreenInfo> m_told;
    mutable GlobalSpace m_space;
};

} // namespace ambrelle
