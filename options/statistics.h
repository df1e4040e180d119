#pragma once

#include <span>

struct DataStore;
struct Module1;

/// The counts of the load at start, by page of the statistics.
namespace Statistics {

struct Count
{
    int captionLabel; ///< 11 for "Label11"
    const char *caption;
    int valueLabel;
    int (*value)(const DataStore &store, const Module1 &module);
};

struct Page
{
    const char *name;
    std::span<const Count> counts;
};

std::span<const Page> pages();

} // namespace Statistics
