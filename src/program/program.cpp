#include "program/program.h"

#include "core/start_up.h"
#include "program/wiring.h"

namespace pantrigo {

Program::Program(Toolkit& toolkit, std::filesystem::path folder) : run_(toolkit, std::move(folder)) {
  wireFrmBrowse(run_);
  wireFrmDetail(run_);
  wireFrmAbout(run_);
  wireFrmOven(run_);
  wireFrmIngredient(run_);
  wireFrmNutrition(run_);
  wireFrmSettings(run_);
  wireFrmSource(run_);
  wireFrmCategory(run_);
  wireFrmOptions(run_);
  wireFrmView(run_);
  for (Form* form : run_.forms()) finishWiring(*form);
  run_.loop.closing = [this] { closeStore(run_); };
}

void Program::start() {
  run_.loop.dispatch([this] { subOpenStore(run_); });
}

}  // namespace pantrigo
