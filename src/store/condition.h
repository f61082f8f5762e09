// Writes a where condition in an engine's language: literals become bound values of the type they are compared with.
#pragma once

#include <string>
#include <vector>

#include "store/catalogue.h"
#include "store/dialect.h"
#include "store/engine.h"

namespace store {

const Column& columnOf(const Table& table, const std::string& name);  // raises Fault::NoSuchColumn

std::string condition(const dialect::Expr& expr, const Table& table, const Phrases& phrases, std::vector<Cell>& values);

}  // namespace store
