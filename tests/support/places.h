// Where the sources lie, and what the build made. In one object, so that a checkout's path is in no other.
#pragma once

#include <string>

namespace orvanta::test {

std::string sourceFolder();
/// The demo disc's folder.
std::string demoFolder();

}  // namespace orvanta::test
