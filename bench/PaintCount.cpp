// SPDX-License-Identifier: MIT

// Preloaded into a program, counts what it paints into its windows, and writes parts and thousands of pixels to the
// file AMBRELLE_PAINTS names whenever the program gets SIGUSR1, and counts from 0 again.

#include <dlfcn.h>
#include <xcb/shm.h>

#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>

namespace {

std::atomic<long> paintedParts;
std::atomic<long> paintedPixels;

void tell(int)
{
    if (FILE* file = std::fopen(std::getenv("AMBRELLE_PAINTS"), "w")) {
        std::fprintf(file, "%ld %ld\n", paintedParts.exchange(0), paintedPixels.exchange(0) / 1000);
        std::fclose(file);
    }
}

[[gnu::constructor]] void listen()
{
    if (std::getenv("AMBRELLE_PAINTS"))
        std::signal(SIGUSR1, tell);
}

} // namespace

extern "C" xcb_void_cookie_t xcb_shm_put_image(xcb_connection_t* connection, xcb_drawable_t drawable, xcb_gcontext_t gc,
    uint16_t totalWidth, uint16_t totalHeight, uint16_t x, uint16_t y, uint16_t width, uint16_t height, int16_t left,
    int16_t top, uint8_t depth, uint8_t format, uint8_t sendEvent, xcb_shm_seg_t segment, uint32_t offset)
{
    static const auto next = reinterpret_cast<decltype(&xcb_shm_put_image)>(dlsym(RTLD_NEXT, "xcb_shm_put_image"));
    ++paintedParts;
    paintedPixels += static_cast<long>(width) * height;
    return next(connection, drawable, gc, totalWidth, totalHeight, x, y, width, height, left, top, depth, format,
        sendEvent, segment, offset);
}
