// SPDX-License-Identifier: MIT

#pragma once

#include <QRandomGenerator>

#include <functional>

namespace ambrelle {

/// Picks one of `count` things by its index; `count` is at least 1. Tests bring their own.
using Choice = std::function<qsizetype(qsizetype count)>;

/// Each is as likely as any other.
inline qsizetype chooseAtRandom(qsizetype count)
{
    return static_cast<qsizetype>(QRandomGenerator::global()->bounded(static_cast<quint64>(count)));
}

} // namespace ambrelle
