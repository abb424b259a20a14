#include "forms/frmOven.h"

#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

constexpr std::array<std::array<std::string_view, FrmOven::columnCount>, FrmOven::rowCount> chart{{
    {"110", "1/4", "225"},
    {"120", "1/2", "250"},
    {"140", "1", "275"},
    {"150", "2", "300"},
    {"160", "3", "325"},
    {"175", "4", "350"},
    {"190", "5", "375"},
    {"200", "6", "400"},
    {"220", "7", "425"},
    {"230", "8", "450"},
    {"240", "9", "475"},
    {"260", "10", "500"},
}};

constexpr std::array<double, FrmOven::columnCount> columnLefts{600, 2040, 3240};
constexpr double firstRowTop = 600;
constexpr double rowDistance = 240;

}  // namespace

FrmOven::FrmOven() : Form("frmOven", "Oven Temperature Conversion Chart", 4500, 4350) {
  for (std::size_t place = 0; place < labels.size(); ++place) {
    const std::size_t row = place / columnCount;
    const std::size_t column = place % columnCount;
    const Box box{columnLefts[column], firstRowTop + rowDistance * static_cast<double>(row), 600, 225};
    labels[place] =
        std::make_unique<Label>(fmeOven, "Label" + plainText(static_cast<long>(place + 1)), chart[row][column], box);
  }
  setCancelButton(cmdCancel);
  sealDesign(&cmdCancel);
}

}  // namespace pantrigo
