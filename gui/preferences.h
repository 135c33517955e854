// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QLatin1StringView>
#include <QVariant>

/** The window's preferences, in the group "SETTINGS" of the settings store that the host's plugins share. */
namespace Preferences {
/** Name of the model that is preselected after a reload; the window only reads it. */
inline constexpr QLatin1StringView PreselectedModel{"logmodel"};
/** Capture mode: Complex or Simple; any other value counts as none. */
inline constexpr QLatin1StringView CaptureMode{"voltbok"};
inline constexpr QLatin1StringView Complex{"Complex"};
inline constexpr QLatin1StringView Simple{"Simple"};

/** The stored value; invalid when there is none. */
QVariant read(QLatin1StringView key);
void write(QLatin1StringView key, QLatin1StringView value);
} // namespace Preferences
