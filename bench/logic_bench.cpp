#include "log_size.h"
#include "ratios.h"

int main(int argumentCount, char** argumentValues) {
  const bool logKept = pantrigo::bench::standingCursorKeepsTheLogSmall();
  const int ratios =
      pantrigo::bench::runRatios(argumentCount, argumentValues,
                                 {{"walk over the titles", "WalkCursor", "WalkPlain", 1.0},
                                  {"seek of a title", "SeekCursor", "SeekPlain", 2.0},
                                  {"start-up, logic alone", "StartLogic", "StartPlain", 3.0},
                                  {"shown ingredients, 1,000 rows", "IngredientsStored", "IngredientsHeld", 1.5}});
  return logKept ? ratios : 1;
}
