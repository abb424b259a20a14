-- A script that is none.

case("no end"
