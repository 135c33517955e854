// SPDX-License-Identifier: GPL-3.0-or-later
#include "host/data/sources.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace Host {
namespace {

// The discharge page's rule for a preset, and the largest values that its fields take.
constexpr quint64 UsualDischargePercent = 80;
constexpr quint64 MostDischarge = 20'000; // mAh
constexpr double MostCurrent = 300.0;     // A

} // namespace

unsigned int presetDischarge(const Battery &battery)
{
    return static_cast<unsigned int>(std::min(battery.capacity * UsualDischargePercent / 100, MostDischarge));
}

unsigned int presetCurrent(const Battery &battery)
{
    const double amperes =
        std::min(static_cast<double>(battery.rating) * battery.capacity / 1000.0, MostCurrent);
    const double shown = QString::number(amperes, 'f', 2).toDouble(); // as a field of two decimals rounds
    return static_cast<unsigned int>(shown * 100.0);                  // truncated when it is recorded
}

Source sourceOf(const Battery &battery, const Discharge &discharge)
{
    if (discharge.discharged == 0 && discharge.current == 0)
        return Source::None;
    if (discharge.isMeasured)
        return Source::Measured;
    const bool isPreset =
        discharge.discharged == presetDischarge(battery) && discharge.current == presetCurrent(battery);
    return isPreset ? Source::Guessed : Source::Entered;
}

bool isCounted(const Battery &battery, const Discharge &discharge)
{
    const Source source = sourceOf(battery, discharge);
    return source == Source::Entered || source == Source::Measured;
}

QString sourceKey(Source source)
{
    switch (source) {
    case Source::None:
        return u"none"_s;
    case Source::Guessed:
        return u"guessed"_s;
    case Source::Entered:
        return u"entered"_s;
    case Source::Measured:
        return u"measured"_s;
    }
    return QString();
}

} // namespace Host
