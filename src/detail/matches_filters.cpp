#include "detail/matches_filters.h"

#include <algorithm>
#include <optional>

#include "core/recipes.h"
#include "platform/text/errors.h"
#include "platform/text/letters.h"
#include "platform/text/numbers.h"

namespace pantrigo {

namespace {

/// What one filter says; nothing when it is not set.
using Verdict = std::optional<bool>;

/// The detail window has no box for the source, and looking it up by name fails.
constexpr int noSuchMember = 438;

bool contains(const std::string& text, const std::string& part) {
  return text.find(part) != std::string::npos;
}

template <TextBox FrmBrowse::*filter, TextBox FrmDetail::*shown>
Verdict containsInAnyCase(const Run& run) {
  const std::string& sought = (run.frmBrowse.*filter).Text();
  if (sought.empty()) return {};
  return contains(UCase((run.frmDetail.*shown).Text()), UCase(sought));
}

template <TextBox FrmBrowse::*filter, TextBox FrmDetail::*shown>
Verdict containsExactly(const Run& run) {
  const std::string& sought = (run.frmBrowse.*filter).Text();
  if (sought.empty()) return {};
  return contains((run.frmDetail.*shown).Text(), sought);
}

template <TextBox FrmBrowse::*filter, ListBox FrmDetail::*shown>
Verdict someLineContains(const Run& run) {
  const std::string& sought = (run.frmBrowse.*filter).Text();
  if (sought.empty()) return {};
  const ListBox& lines = run.frmDetail.*shown;
  for (int row = 0; row < lines.ListCount(); ++row) {
    if (contains(lines.List(row), sought)) return true;
  }
  return false;
}

template <ComboBox FrmBrowse::*filter, ComboBox FrmDetail::*shown>
Verdict holdsTheSame(const Run& run) {
  const std::string& sought = (run.frmBrowse.*filter).Text();
  if (sought.empty()) return {};
  return (run.frmDetail.*shown).Text() == sought;
}

/// The rows of both lists are the same categories in the same order. One that both have selected is enough.
template <ListBox FrmBrowse::*filter, ListBox FrmDetail::*shown>
Verdict hasCommonRow(const Run& run) {
  const ListBox& sought = run.frmBrowse.*filter;
  Verdict verdict;
  for (int row = 0; row < sought.ListCount(); ++row) {
    if (!sought.Selected(row)) continue;
    if ((run.frmDetail.*shown).Selected(row)) return true;
    verdict = false;
  }
  return verdict;
}

/// The sides of a limit that count, by the filter's sign.
template <class Ordered>
bool isWithin(const std::string& sign, const Ordered& value, const Ordered& limit) {
  return sign == atMost ? value <= limit : value >= limit;
}

/// Times compare as the texts in the boxes, by character code: "100" is below "60".
Verdict hasTime(const Run& run, const NumericFilter& filter) {
  const FrmBrowse& browse = run.frmBrowse;
  const TextBox& shown = filter.field == "PrepareTime" ? run.frmDetail.txtPrepareTime : run.frmDetail.txtCookTime;
  return isWithin((browse.*filter.sign).Caption(), shown.Text(), (browse.*filter.box).Text());
}

Verdict hasAmount(const Run& run, const NumericFilter& filter) {
  const FrmBrowse& browse = run.frmBrowse;
  const auto isOfField = [&](const NutritionValue& nutrition) { return nutrition.field == filter.field; };
  const NutritionValue& shown = *std::find_if(nutritionValues.begin(), nutritionValues.end(), isOfField);
  const double limit = Value((browse.*filter.box).Text()).number();
  return isWithin((browse.*filter.sign).Caption(), shortest(run.GLOBAL.*shown.value), limit);
}

Verdict hasNumber(const Run& run, const NumericFilter& filter) {
  if ((run.frmBrowse.*filter.box).Text().empty()) return {};
  return filter.isTime ? hasTime(run, filter) : hasAmount(run, filter);
}

template <TextBox FrmBrowse::*filter>
Verdict cannotBeLookedUp(const Run& run) {
  if (!(run.frmBrowse.*filter).Text().empty()) throw RuntimeError(noSuchMember);
  return {};
}

using B = FrmBrowse;
using D = FrmDetail;
using Test = Verdict (*)(const Run&);

/// The filters on texts, categories and lists, which come first.
constexpr Test firstTests[] = {
    containsInAnyCase<&B::txtTitle, &D::txtTitle>,        someLineContains<&B::txtIngredient, &D::lstIngredient>,
    holdsTheSame<&B::cmbNationality, &D::cmbNationality>, holdsTheSame<&B::cmbCourse, &D::cmbCourse>,
    holdsTheSame<&B::cmbCooking, &D::cmbCooking>,         holdsTheSame<&B::cmbEase, &D::cmbEase>,
    hasCommonRow<&B::lstHealth, &D::lstHealth>,           hasCommonRow<&B::lstOther, &D::lstOther>,
};

/// Those behind the filters on numbers.
constexpr Test lastTests[] = {
    containsExactly<&B::txtComments, &D::txtComments>,
    cannotBeLookedUp<&B::txtSource>,
};

}  // namespace

FilterVerdict funMatchesFilters(Run& run) {
  FilterVerdict result = FilterVerdict::NoFilter;
  const auto take = [&](Verdict verdict) {
    if (verdict.has_value()) result = *verdict ? FilterVerdict::Matches : FilterVerdict::Differs;
  };
  for (const Test test : firstTests) take(test(run));
  for (const NumericFilter& filter : numericFilters) take(hasNumber(run, filter));
  for (const Test test : lastTests) take(test(run));
  return result;
}

}  // namespace pantrigo
