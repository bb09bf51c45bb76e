#pragma once

#include "faces/Readings.h"

namespace ambrelle {

class DevicesService;

DevicesReading devicesReading(const DevicesService& service);

} // namespace ambrelle
