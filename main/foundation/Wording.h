#pragma once

#include <QCoreApplication>

namespace ambrelle {

/// What people read goes through Wording::tr(), so that a translation file reaches every text.
class Wording {
    Q_DECLARE_TR_FUNCTIONS(ambrelle)
};

} // namespace ambrelle
