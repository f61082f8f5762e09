// Types values by the catalogue, on their way into a column and out of it.
#pragma once

#include <optional>
#include <string_view>

#include "store/catalogue.h"
#include "store/engine.h"

namespace store {

// The value as the column holds it: "2008-9-1" becomes a date. Raises Fault::Statement, naming the column, for what
// does not fit. Null stays Null; the empty text stays in text and date columns and is Null in all others.
Value typed(Value value, const Column& column);

Cell cell(Value typed);
Value read(const Statement& statement, int column, Type type);

Stored storedAs(Type type);

std::optional<double> numberIn(std::string_view text);
std::optional<bool> yesIn(std::string_view text);
Cell numberCell(double number);  // whole numbers as such, so that they show without decimals

}  // namespace store
