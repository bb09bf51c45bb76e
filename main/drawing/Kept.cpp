// SPDX-License-Identifier: MIT

#include "drawing/Kept.h"

#include <QFont>

#include <vector>

namespace ambrelle {

namespace {

std::vector<std::function<void()>>& clearsOfThread()
{
    thread_local std::vector<std::function<void()>> clears;
    return clears;
}

} // namespace

void addKept(std::function<void()> clear)
{
    clearsOfThread().push_back(std::move(clear));
}

void forgetKept()
{
    for (const std::function<void()>& clear : clearsOfThread())
        clear();
    QFont::cleanup(); // nothing else takes the shapers and glyphs of fonts that are not used any more
}

} // namespace ambrelle
