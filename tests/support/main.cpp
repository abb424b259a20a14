// Runs scenarios: scripts named by their paths. Prints what fails, and as the last line how many cases passed and
// failed.

#include <iostream>

#include "support/script.h"

int main(int argumentCount, char** argumentValues) {
  if (argumentCount < 2) {
    std::cerr << "usage: scenario_runner FILE.lua ...\n";
    return 2;
  }
  try {
    const pantrigo::StoreTemplate storeTemplate;
    pantrigo::Counts total;
    for (int place = 1; place < argumentCount; ++place) {
      pantrigo::Script script(argumentValues[place], storeTemplate);
      const pantrigo::Counts counts = script.run();
      total.passed += counts.passed;
      total.failed += counts.failed;
    }
    std::cout << total.passed << " passed, " << total.failed << " failed" << std::endl;
    return total.failed == 0 ? 0 : 1;
  } catch (const std::exception& error) {
    std::cerr << "scenario_runner: " << error.what() << '\n';
    return 2;
  }
}
