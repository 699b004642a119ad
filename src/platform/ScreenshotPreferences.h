#pragma once

/// The keys in the preferences of the system's screenshot service.
namespace vantle::screenshotPreferences {

/// Text: the path of the folder into which captures are saved. It may begin with "~".
inline constexpr auto location = "location";

/// A boolean: whether the system shows a thumbnail of its own after a capture.
inline constexpr auto showThumbnail = "show-thumbnail";

}  // namespace vantle::screenshotPreferences
