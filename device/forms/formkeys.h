// Keys of the maps that forms return to QML.
#pragma once

#include <QString>

/// A setting of EncodeForm.
namespace SettingKey {
inline constexpr QLatin1StringView key("key");         ///< key of setConfigData()
inline constexpr QLatin1StringView changed("changed"); ///< bool: differs from the value on the device
inline constexpr QLatin1StringView choices("choices"); ///< list of strings, as the back end names them
inline constexpr QLatin1StringView names("names");     ///< list of strings: the choices for the user
inline constexpr QLatin1StringView index("index");     ///< int: index of the current choice, -1 for none
inline constexpr QLatin1StringView value("value");     ///< int: number, or 0 or 1 of a switch
inline constexpr QLatin1StringView minimum("minimum"); ///< int: a smaller `value` is unknown
inline constexpr QLatin1StringView maximum("maximum"); ///< int
inline constexpr QLatin1StringView usable("usable");   ///< bool: the value was read, and there are others
} // namespace SettingKey

/// A stream of EncodeForm, in addition to its settings.
namespace StreamFormKey {
inline constexpr QLatin1StringView exists("exists");     ///< bool: the device has the stream
inline constexpr QLatin1StringView hasAudio("hasAudio"); ///< bool: the stream has sound
} // namespace StreamFormKey
