// The deck in every variant of its look, put together over fakes: one picture each.
#pragma once

#include <QImage>
#include <string>
#include <vector>

namespace orvanta::test {

std::vector<std::string> sceneNames();
QImage pictureOf(const std::string& scene, double factor);

}  // namespace orvanta::test
