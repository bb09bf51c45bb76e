// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"

namespace ambrelle {

class LiveServices;
class SystemMonitor;

/// What pictures of widgets show: always the same, whatever the machine and the hour.
namespace SampleData {

/// The moment that the pictures are of.
QDateTime moment();
/// A widget of that kind; the skin is of no account.
WidgetConfig widget(WidgetKind kind);
/// Fills the services. `picture` stands for the photo and for the artwork of the track.
void load(SystemMonitor& monitor, LiveServices& services, const QImage& picture);

} // namespace SampleData

} // namespace ambrelle
