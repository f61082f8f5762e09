// The catalogue's own parts: each group of tables stands in a file of its own, and is put together in catalogue.cpp.
#pragma once

#include <initializer_list>
#include <string_view>
#include <vector>

#include "store/catalogue.h"

namespace store {

using Columns = std::vector<Column>;

constexpr Column text(std::string_view name) { return {name, Type::Text}; }
constexpr Column number(std::string_view name) { return {name, Type::Number}; }
constexpr Column money(std::string_view name) { return {name, Type::Money}; }
constexpr Column date(std::string_view name) { return {name, Type::Date}; }
constexpr Column moment(std::string_view name) { return {name, Type::DateTime}; }
constexpr Column yesNo(std::string_view name) { return {name, Type::YesNo}; }
constexpr Column bytes(std::string_view name) { return {name, Type::Bytes}; }

// The record marker of most tables: a moment as text, or the name of the computer at which the row was keyed.
constexpr Column marker = text("bsh");

// A column list without some of its columns, and one with more of them.
Columns without(Columns columns, std::initializer_list<std::string_view> names);
Columns with(Columns columns, std::initializer_list<Column> more);

// Column lists that tables of several groups share.
Columns studentColumns();
Columns paymentColumns();
Columns arrearsColumns();
Columns suspensionColumns();
Columns gradeColumns();
Columns teacherColumns();
Columns assetMovementColumns();
Columns placementColumns();

std::vector<Table> studentTables();   // students, grades, graduates
std::vector<Table> feeTables();       // fee setup, payments, arrears
std::vector<Table> upkeepTables();    // users, log, help, messages, configuration
std::vector<Table> staffTables();     // teachers and their pay
std::vector<Table> propertyTables();  // dormitories, assets
std::vector<Table> libraryTables();
std::vector<Table> printTables();

}  // namespace store
