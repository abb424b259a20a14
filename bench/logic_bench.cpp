#include "ratios.h"

int main(int argumentCount, char** argumentValues) {
  return pantrigo::bench::runRatios(argumentCount, argumentValues,
                                    {{"walk over the titles", "WalkCursor", "WalkPlain", 1.0},
                                     {"seek of a title", "SeekCursor", "SeekPlain", 2.0},
                                     {"start-up, logic alone", "StartLogic", "StartPlain", 3.0},
                                     {"shown ingredients, 1,000 rows", "IngredientsStored", "IngredientsHeld", 1.5}});
}
