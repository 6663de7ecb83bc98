// The core's UTF-8 text as Qt's.
#pragma once

#include <QColor>
#include <QString>
#include <string>

namespace orvanta {

inline QString toQt(const std::string& text) { return QString::fromStdString(text); }

/// Shown as it stands, whatever marks it holds; "" for none.
inline QString plainTip(const std::string& text) {
  return text.empty() ? QString() : QStringLiteral("<span>%1</span>").arg(toQt(text).toHtmlEscaped());
}

}  // namespace orvanta
