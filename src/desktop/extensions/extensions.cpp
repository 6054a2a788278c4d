#include "desktop/extensions/extensions.h"

#include "desktop/extensions/announcer.h"
#include "desktop/extensions/editor_aids.h"
#include "desktop/extensions/gallery.h"
#include "desktop/extensions/line_journal.h"
#include "desktop/extensions/look_back.h"
#include "desktop/extensions/page_links.h"
#include "desktop/extensions/panel_drag.h"
#include "desktop/extensions/picture_keys.h"
#include "desktop/extensions/projector.h"
#include "desktop/extensions/recovery.h"
#include "desktop/extensions/speed.h"
#include "desktop/extensions/stop.h"
#include "desktop/extensions/zoom.h"

namespace zerimo {

void AddExtensions(Session& session, const std::filesystem::path& folder, std::chrono::milliseconds keepAfter) {
  session.Add(std::make_unique<Stop>(session));
  auto chip = std::make_unique<RunChip>(session);
  auto zoom = std::make_unique<Zoom>(session);
  session.Add(std::make_unique<Speed>(session, *chip, *zoom));
  session.Add(std::move(chip));
  auto lineJournal = std::make_unique<LineJournal>(session.form1, folder / "journal");
  session.Add(std::make_unique<Recovery>(session, *lineJournal, folder / "rescued", keepAfter));
  session.Add(std::move(lineJournal));
  session.Add(std::make_unique<EditorAids>(session));
  session.Add(std::make_unique<LookBack>(session));
  session.Add(std::make_unique<PictureKeys>(session));
  session.Add(std::make_unique<PrintPicture>(session));
  session.Add(std::make_unique<Gallery>(session));
  session.Add(std::make_unique<Projector>(session));
  session.Add(std::make_unique<PanelDrag>(session));
  session.Add(std::make_unique<PageLinks>(session));
  session.Add(std::move(zoom));
  session.Add(std::make_unique<Announcer>(session));
}

}  // namespace zerimo
