// SPDX-License-Identifier: MIT

#include "foundation/BackgroundThread.h"

#include <atomic>

namespace ambrelle {

namespace {

std::atomic<void (*)()> yieldingWay = nullptr;

} // namespace

void yieldToOthers()
{
    if (const auto way = yieldingWay.load())
        way();
}

void setYieldToOthers(void (*way)())
{
    yieldingWay = way;
}

} // namespace ambrelle
