// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

namespace ambrelle {

class ScreenList;

/// The part of a host that is the toolkit's on every window system: screens, and where things are on them.
class ToolkitWindowHost : public WindowHost {
public:
    QList<ScreenInfo> screens() const final;
    QPointF pointer() const final;
    QRectF toolkitRect(const QRectF& rect) const final;

protected:
    virtual ScreenList* screenList() const = 0; ///< null while no window can be shown
};

} // namespace ambrelle
