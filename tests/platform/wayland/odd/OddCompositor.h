// SPDX-License-Identifier: MIT

#pragma once

#include <QMap>
#include <QPoint>
#include <QSize>
#include <QString>

#include <wayland-server-core.h>

#include <deque>
#include <functional>
#include <mutex>
#include <thread>

namespace ambrelle::test {

/// A compositor on a thread of its own that shows nothing and answers as it is told, with as little as the protocol
/// demands or less. What its client may not do ends the client's connection, as elsewhere.
class OddCompositor {
public:
    struct Output {
        wl_global* global = nullptr;
        QPoint corner;
        QSize mode; ///< pixels; empty: it tells none
        int scale = 1;
        bool isDone = true; ///< says when it has told everything
    };
    struct Layer {
        wl_resource* role = nullptr;
        QSize wanted;
        bool isConfigured = false; ///< and the client has said that it knows
        int commits = 0; ///< with pixels since then
    };

    OddCompositor(); ///< listens; WAYLAND_DISPLAY names it
    ~OddCompositor();
    OddCompositor(const OddCompositor&) = delete;
    OddCompositor& operator=(const OddCompositor&) = delete;

    /// Waits until that has been done where everything else is; not from there.
    void run(const std::function<void()>& work);

    // To be used inside run().
    Output* plug(const Output& output);
    void unplug(Output* output);
    void offerLayerShell();
    void withdrawLayerShell(); ///< from those who ask from now on
    QList<Layer*> layers() const; ///< those there are, in the order they were made
    void close(Layer* layer);
    void setPower(bool on); ///< of all outputs; who asks later is told that they are on
    QSize configured{-1, -1}; ///< the size that layers are told; not valid: the one they want

private:
    struct Surface;
    friend struct OddRequests;

    wl_display* m_display;
    wl_global* m_layerShell = nullptr;
    std::deque<Output> m_outputs;
    QMap<wl_resource*, Surface*> m_surfaces;
    QList<Layer*> m_layers;
    QList<wl_resource*> m_powers;
    std::mutex m_lock;
    std::deque<std::function<void()>> m_work;
    int m_wake;
    bool m_isOver = false;
    std::thread m_thread;
};

} // namespace ambrelle::test
