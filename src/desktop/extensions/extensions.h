#pragma once

#include <chrono>
#include <filesystem>

#include "desktop/session.h"

namespace zerimo {

/// Puts everything that goes beyond the classic system beside a session; see docs/extensions.md. `folder` is where the
/// user's texts are kept; it is created when needed. A change to the text of the editor is kept after `keepAfter`.
void AddExtensions(Session& session, const std::filesystem::path& folder,
                   std::chrono::milliseconds keepAfter = std::chrono::seconds(1));

}  // namespace zerimo
