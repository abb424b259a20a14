// The person of a case at the turns of the event pump, which scripts reach only by long work of the program.

#include <gtest/gtest.h>

#include <memory>

#include "support/scenario_case.h"

namespace pantrigo {
namespace {

class PersonTest : public testing::Test {
 protected:
  PersonTest() {
    luaL_openlibs(lua.get());
    *static_cast<void**>(lua_getextraspace(lua.get())) = this;
    lua_register(lua.get(), "turn", turn);
    scenario.createStore({});
    scenario.start(lua.get());
  }

  /// What the script's function calls at each turn.
  static int turn(lua_State* state) {
    auto& test = **static_cast<PersonTest**>(lua_getextraspace(state));
    return guardedCall(state, [&] {
      const int number = toWhole(state, 1);
      test.turns.push_back(number);
      if (test.atTurn) test.atTurn(number);
      return 0;
    });
  }

  void onTurn(const char* code) {
    ASSERT_EQ(luaL_loadstring(lua.get(), code), LUA_OK);
    scenario.onTurn(LuaFunction(lua.get(), -1));
    lua_pop(lua.get(), 1);
  }

  void act(const std::function<void()>& event) { scenario.act(lua.get(), event); }

  StoreTemplate storeTemplate;
  std::unique_ptr<lua_State, decltype(&lua_close)> lua{luaL_newstate(), lua_close};
  ScenarioCase scenario{storeTemplate};
  std::vector<int> turns;
  std::function<void(int)> atTurn;
};

TEST_F(PersonTest, TurnsAreNumberedFromTheNamingOn) {
  EventLoop& loop = scenario.run().loop;
  onTurn("turn(...)");
  act([&] {
    loop.DoEvents();
    loop.DoEvents();
  });
  EXPECT_EQ(turns, (std::vector<int>{1, 2}));
  onTurn("turn(...)");
  act([&] { loop.DoEvents(); });
  EXPECT_EQ(turns, (std::vector<int>{1, 2, 1}));
  scenario.onTurn({});
  act([&] { loop.DoEvents(); });
  EXPECT_EQ(turns.size(), 3U);
}

TEST_F(PersonTest, ANestedPumpNumbersOn) {
  EventLoop& loop = scenario.run().loop;
  onTurn("turn(...)");
  atTurn = [&](int number) {
    if (number == 1) act([&] { loop.DoEvents(); });
  };
  act([&] {
    loop.DoEvents();
    loop.DoEvents();
  });
  EXPECT_EQ(turns, (std::vector<int>{1, 2, 3}));
}

TEST_F(PersonTest, TheFunctionOfATurnMayBeTakenBackInIt) {
  EventLoop& loop = scenario.run().loop;
  onTurn("turn(...)");
  atTurn = [&](int) { scenario.onTurn({}); };
  act([&] {
    loop.DoEvents();
    loop.DoEvents();
  });
  EXPECT_EQ(turns, std::vector<int>{1});
}

TEST_F(PersonTest, TheWorkStopsWhereTheRunEndsInATurn) {
  EventLoop& loop = scenario.run().loop;
  bool wentOn = false;
  onTurn("turn(...) turn(2)");
  atTurn = [&](int) { act([&] { loop.End(); }); };
  act([&] {
    loop.DoEvents();
    wentOn = true;
  });
  EXPECT_EQ(turns, std::vector<int>{1});
  EXPECT_FALSE(wentOn);
  EXPECT_FALSE(scenario.running());
  EXPECT_FALSE(scenario.failure().has_value());
}

TEST_F(PersonTest, AnErrorOfTheScriptInATurnFailsTheCase) {
  EventLoop& loop = scenario.run().loop;
  onTurn("error('in the turn', 0)");
  EXPECT_THROW(act([&] { loop.DoEvents(); }), LeaveFunction);
  EXPECT_FALSE(scenario.running());
  ASSERT_TRUE(scenario.failure().has_value());
  EXPECT_EQ(scenario.failure()->text, "in the turn");
}

TEST_F(PersonTest, AnErrorOfTheProgramInATurnIsTheRunsError) {
  EventLoop& loop = scenario.run().loop;
  onTurn("turn(...)");
  atTurn = [&](int) { act([] { throw RuntimeError(13); }); };
  EXPECT_THROW(act([&] { loop.DoEvents(); }), LeaveFunction);
  EXPECT_FALSE(scenario.failure().has_value());
  const std::optional<RuntimeError> error = scenario.takeError();
  ASSERT_TRUE(error.has_value());
  EXPECT_EQ(error->number(), 13);
  EXPECT_EQ(scenario.toolkit().takeBoxes().size(), 1U);
}

TEST_F(PersonTest, BeepsAreCounted) {
  Toolkit& toolkit = scenario.run().toolkit;
  for (int beep = 0; beep < 40; ++beep) toolkit.Beep();
  EXPECT_EQ(scenario.toolkit().takeBeeps(), 40);
  EXPECT_EQ(scenario.toolkit().takeBeeps(), 0);
}

TEST_F(PersonTest, TheClockStandsUntilItIsSetAgain) {
  scenario.toolkit().setClock({1999, 12, 31, 23, 59});
  const LocalTime now = scenario.run().toolkit.Now();
  EXPECT_EQ(now.year, 1999);
  EXPECT_EQ(now.month, 12);
  EXPECT_EQ(now.day, 31);
  EXPECT_EQ(now.hour, 23);
  EXPECT_EQ(now.minute, 59);
}

}  // namespace
}  // namespace pantrigo
