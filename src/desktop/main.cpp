#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QScreen>
#include <QSessionManager>
#include <QTextStream>

#include "desktop/desktop.h"
#include "desktop/end_signals.h"
#include "desktop/look.h"
#include "desktop/pictures.h"
#include "desktop/screen_area.h"
#include "desktop/text_conversion.h"

namespace {

/// Writes pictures of the windows, closes the program, and gives the exit status.
int runForPictures(pantrigo::Desktop& desktop, const QString& folder) {
  if (desktop.program().ended()) return desktop.program().exitStatus();
  const bool written = pantrigo::writePictures(desktop, folder);
  desktop.close();
  if (!written) QTextStream(stderr) << "The pictures could not be written into " << folder << ".\n";
  return written ? desktop.program().exitStatus() : EXIT_FAILURE;
}

}  // namespace

int main(int argc, char* argv[]) {
  pantrigo::EndSignals endSignals;
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Pantrigo"));
  QApplication::setQuitOnLastWindowClosed(false);

  QCommandLineParser arguments;
  const QCommandLineOption pictures(
      QStringLiteral("pictures"),
      QStringLiteral("Opens the first recipe, writes pictures of the windows into <folder>, and ends."),
      QStringLiteral("folder"));
  arguments.addOption(pictures);
  arguments.addHelpOption();
  arguments.process(application);

  pantrigo::applyLook(application, pantrigo::screenArea(QGuiApplication::primaryScreen()->availableGeometry()).scale);
  pantrigo::Desktop desktop(pantrigo::fromQt(QDir::currentPath()));
  endSignals.connect([&] { desktop.close(); });
  QObject::connect(
      &application, &QGuiApplication::commitDataRequest, &application, [&](QSessionManager&) { desktop.close(); },
      Qt::DirectConnection);
  if (arguments.isSet(pictures)) desktop.toolkit().setUnattended();
  desktop.start();
  return arguments.isSet(pictures) ? runForPictures(desktop, arguments.value(pictures)) : desktop.run();
}
