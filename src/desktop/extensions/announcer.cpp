#include "desktop/extensions/announcer.h"

#include <QAccessibleWidget>
#include <algorithm>

#include "desktop/desktop_text.h"

namespace zerimo {

/// A screen reader reads a notification as soon as it appears, wherever the focus is.
class Announcer::Voice : public QWidget {
 public:
  explicit Voice(QWidget& window) : QWidget(&window) {
    setObjectName(QStringLiteral("Announcer"));
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setAttribute(Qt::WA_NoSystemBackground);
    setFixedSize(1, 1);
    QAccessible::installFactory(&AsNotification);
    show();
  }

  void Say(const QString& words) {
    setAccessibleName(words);
    QAccessibleEvent appeared(this, QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&appeared);
  }

 private:
  static QAccessibleInterface* AsNotification(const QString&, QObject* object) {
    auto* const voice = dynamic_cast<Voice*>(object);
    return voice == nullptr ? nullptr : new QAccessibleWidget(voice, QAccessible::Notification);
  }
};

Announcer::Announcer(Session& session) : history_(session.form1.controls.List4), voice_(*new Voice(session.window)) {}

void Announcer::RunEnds() {
  const std::vector<std::string>& entries = history_.Items();
  if (entries.size() == told_) return;
  // The history may have been cleared and begun again.
  std::size_t next = entries.size() < told_ ? 0 : told_;
  told_ = entries.size();
  next = std::max(next, told_ - std::min(told_, MostEntries));
  QStringList words;
  for (; next < told_; ++next) {
    const QString entry = ToQString(entries[next]);
    words.append((entry.startsWith(u'?') ? entry.sliced(1) : entry).trimmed());
  }
  if (!words.isEmpty()) voice_.Say(words.join(u'\n'));
}

}  // namespace zerimo
