// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/GlobalSpace.h"
#include "platform/WindowHost.h"

#include <QTimer>

#include <functional>
#include <optional>

class QScreen;

namespace ambrelle {

/// What a desktop tells of a screen that the toolkit does not know.
struct ScreenFacts {
    QString maker; ///< as the display tells it; empty when unknown
    QString model; ///< likewise
    QString serial; ///< likewise
    QRectF usable; ///< what bars and docks leave of it; all of it is from 0 to 1, y down

    bool operator==(const ScreenFacts&) const = default;
};

/// The connected screens as the toolkit knows them, and the global space they span.
class ScreenList final : public QObject {
    Q_OBJECT
public:
    /// By the connector's name; none: the desktop knows no such screen.
    using FactsOf = std::function<std::optional<ScreenFacts>(const QString& connector)>;

    explicit ScreenList(FactsOf factsOf = {});

    void factsChanged(); ///< what `factsOf` says

    QList<ScreenInfo> screens() const; ///< read afresh: what docks leave free is not always announced
    GlobalSpace space() const; ///< while no screen is connected, as it was before

Q_SIGNALS:
    void changed(); ///< the list differs from the last one told, and has been quiet for a moment

private:
    void follow(QScreen* screen);
    void compare();

    FactsOf m_factsOf;
    QTimer m_quiet;
    QList<ScreenInfo> m_told;
    mutable GlobalSpace m_space;
};

} // namespace ambrelle
