#pragma once

class Desktop;
class ListActions;
class OwnActions;
struct Module1;

/// Connects "Save table as CSV" of the menu Edit and of the lists' context menus. All references outlive @p
/// lists.
void connectCsvAction(const OwnActions &actions, const ListActions &lists, Module1 &module, Desktop &desktop);
