#include "desktop/desktop.h"

#include <QCoreApplication>

namespace pantrigo {

Desktop::Desktop(std::filesystem::path folder) : program_(toolkit_, std::move(folder)) {
  toolkit_.attach(program_.run().windows);
}

int Desktop::run() {
  if (program_.ended()) return program_.exitStatus();
  toolkit_.whenEnded = [] { QCoreApplication::exit(); };
  QCoreApplication::exec();
  return program_.exitStatus();
}

void Desktop::close() {
  toolkit_.dispatch([this](Windows& windows) {
    Run& run = program_.run();
    if (!run.frmBrowse.Loaded()) run.loop.End();
    windows.userCloses(run.frmBrowse);
  });
}

}  // namespace pantrigo
