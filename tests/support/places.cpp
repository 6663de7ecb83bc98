#include "tests/support/places.h"

namespace orvanta::test {

std::string sourceFolder() { return ORVANTA_SOURCE; }
std::string demoFolder() { return ORVANTA_DEMO; }

}  // namespace orvanta::test
