// SPDX-License-Identifier: MIT

#include "foundation/FreeMemory.h"

#include <atomic>

namespace ambrelle {

namespace {

std::atomic<void (*)()> givingWay = nullptr;

} // namespace

void giveBackFreeMemory()
{
    if (const auto way = givingWay.load())
        way();
}

void setGiveBackFreeMemory(void (*way)())
{
    givingWay = way;
}

} // namespace ambrelle
