// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/Reply.h"
#include "support/WaitUntil.h"

#include <QImage>
#include <QRect>
#include <QStringList>

#include <xcb/xcb.h>

#include <map>
#include <vector>

namespace ambrelle::test {

void rest(int milliseconds); ///< runs the event loop for that long, to see that nothing happens
/// Runs a program while the event loop goes on; false unless it ends well.
bool runTool(const QString& program, const QStringList& arguments);
/// Every pixel differs from its neighbours, so that a picture drawn one pixel off is seen.
QImage speckled(const QSize& size, int seed = 0);

/// Another application on the same display, with a connection of its own: it opens ordinary windows and sees what a
/// user sees. Everything is in native pixels of the root window, y down.
class Onlooker {
public:
    Onlooker();
    ~Onlooker();

    /// Opens a window of one colour and waits for it; `type` is an atom's name such as "_NET_WM_WINDOW_TYPE_NORMAL".
    xcb_window_t openWindow(const QRect& place, QRgb colour, const char* type = "_NET_WM_WINDOW_TYPE_NORMAL");
    void closeWindow(xcb_window_t window);
    void place(xcb_window_t window, const QRect& place); ///< asks for it
    void setValues(xcb_window_t window, const char* property, xcb_atom_t type, const std::vector<uint32_t>& values);
    void setRootPicture(const QImage& picture); ///< as a wallpaper program does
    void dropRootPicture();
    bool hasPixmap(xcb_pixmap_t pixmap) const; ///< the server still keeps it
    void showDesktop(bool on);
    void fillScreen(xcb_window_t window);

    QRgb pixel(const QPoint& place) const;
    QImage picture(const QRect& area) const;
    std::vector<uint32_t> values(xcb_window_t window, const char* property) const;
    QStringList atoms(xcb_window_t window, const char* property) const;
    xcb_window_t activeWindow() const;
    bool isAbove(xcb_window_t upper, xcb_window_t lower) const; ///< in the window manager's stacking list
    bool isManaged(xcb_window_t window) const; ///< the window manager lists it
    bool isViewable(xcb_window_t window) const;
    QRect geometry(xcb_window_t window) const;
    bool isComposited() const;
    int clicks(xcb_window_t window); ///< button presses so far in a window opened here

private:
    xcb_atom_t atom(const char* name) const;
    void tellManager(xcb_window_t window, const char* message, uint32_t first, uint32_t second = 0) const;

    xcb_connection_t* m_connection;
    xcb_screen_t* m_screen;
    xcb_pixmap_t m_rootPicture = XCB_PIXMAP_NONE;
    std::map<xcb_window_t, int> m_clicks;
};

} // namespace ambrelle::test
