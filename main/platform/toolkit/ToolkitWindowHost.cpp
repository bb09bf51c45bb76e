// SPDX-License-Identifier: MIT

#include "platform/toolkit/ToolkitWindowHost.h"

#include "platform/toolkit/ScreenList.h"

#include <QCursor>

namespace ambrelle {

QList<ScreenInfo> ToolkitWindowHost::screens() const
{
    const ScreenList* const list = screenList();
    return list ? list->screens() : QList<ScreenInfo>{};
}

QPointF ToolkitWindowHost::pointer() const
{
    const ScreenList* const list = screenList();
    return list ? list->space().turned(QPointF(QCursor::pos())) : QPointF();
}

QRectF ToolkitWindowHost::toolkitRect(const QRectF& rect) const
{
    const ScreenList* const list = screenList();
    return list ? list->space().turnedBack(rect) : rect;
}

} // namespace ambrelle
