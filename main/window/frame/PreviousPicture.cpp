// SPDX-License-Identifier: MIT

#include "window/frame/PreviousPicture.h"

#include "foundation/Wording.h"
#include "window/frame/Undo.h"

namespace ambrelle {

void giveBack(const WindowContext& context, const DesktopWallpaper::Memory& memory)
{
    context.undo.makeFinal();
    context.wallpaper.giveBack(memory, [context, memory](const QString& error) {
        if (!error.isEmpty())
            context.undo.failPicture(error, [context, memory] { giveBack(context, memory); });
    });
}

void bringBackPrevious(const WindowContext& context, const DesktopWallpaper::Done& settled)
{
    context.undo.beginPicture();
    context.wallpaper.remember([context, settled](const DesktopWallpaper::Memory& memory) {
        context.wallpaper.giveBackPrevious([context, settled, memory](const QString& error) {
            settled(error);
            if (!error.isEmpty())
                context.undo.failPicture(error, [context, settled] { bringBackPrevious(context, settled); });
            else if (memory.isKnown())
                context.undo.offer(
                    {Wording::tr("Your own picture is back"), [context, memory] { giveBack(context, memory); }});
        });
    });
}

} // namespace ambrelle
