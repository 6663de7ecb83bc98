// The host and the toolkit, in the words that people use.
#include "platform/qt/qt_facts.h"

#include <QGuiApplication>
#include <QSysInfo>

namespace orvanta {

std::string systemName() { return QSysInfo::prettyProductName().toStdString(); }

std::string toolkitName() {
  QString platform = QGuiApplication::platformName();
  if (platform == QLatin1String("xcb")) platform = QStringLiteral("X11");
  if (platform.startsWith(QLatin1String("wayland"))) platform = QStringLiteral("Wayland");
  return "Qt " + std::string(qVersion()) + " on " + platform.toStdString();
}

}  // namespace orvanta
