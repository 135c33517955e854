// SPDX-License-Identifier: GPL-3.0-or-later
// In place of xlsx.cpp where its library was not found.
#include "host/exchange/xlsx.h"

#include <QCoreApplication>

namespace Host {

bool Xlsx::isAvailable()
{
    return false;
}

Xlsx::Written Xlsx::write(const Catalogue &, const Catalogue &, const ByteSink &, const Proceed &)
{
    return {QCoreApplication::translate("Xlsx", "this build of the program cannot write workbooks")};
}

} // namespace Host
