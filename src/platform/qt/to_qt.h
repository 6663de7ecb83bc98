// The core's UTF-8 text as Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <string>

namespace orvanta {

inline QString toQt(const std::string& text) { return QString::fromStdString(text); }

}  // namespace orvanta
