// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Readings.h"
#include "model/WidgetKind.h"

#include <QLocale>

namespace ambrelle {

/// The states a face has to look right in.
enum class FaceState {
    sample,
    empty, ///< the longest sentence that kind shows in place of its content
    waiting, ///< the shortest one: nothing has been read yet
    quiet, ///< content of the least: zeros, one row, one letter
    extreme, ///< the largest figures, the fullest lists
    longNames, ///< eighty characters wherever a user's text stands
};

inline constexpr FaceState faceStates[] = {FaceState::sample, FaceState::empty, FaceState::waiting, FaceState::quiet,
    FaceState::extreme, FaceState::longNames};

/// A reading of the kind in that state.
Reading stateReading(WidgetKind kind, FaceState state, const QLocale& locale);
/// What users and others wrote on it: names and titles, which may be shortened.
QStringList foreignTexts(const Reading& reading);

} // namespace ambrelle
