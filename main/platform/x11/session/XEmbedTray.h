// SPDX-License-Identifier: MIT

#pragma once

#include "platform/TrayPresence.h"

#include <QAbstractNativeEventFilter>

#include <xcb/xcb.h>

namespace ambrelle {

/// A panel that takes the windows of items into its own. Present while something owns the tray selection of the screen.
class XEmbedTray final : public TrayPresence, private QAbstractNativeEventFilter {
public:
    bool isAvailable() const override;
    QString whyNot() const override;
    void start() override;

private:
    bool nativeEventFilter(const QByteArray& eventType, void* message, qintptr* result) override;

    xcb_connection_t* m_connection = nullptr; // the toolkit's, which hears the root window
    xcb_atom_t m_selection = XCB_ATOM_NONE;
    xcb_atom_t m_manager = XCB_ATOM_NONE;
};

} // namespace ambrelle
