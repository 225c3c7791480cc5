// The six numbers of a tick line. One thread's data, no state.
#pragma once

#include "market/HistoryFields.h"
#include "market/TickBatch.h"

namespace zantroq {

// Fills the prices, sizes and numbers of the tick `at`. REQUIRES: nine fields.
void ReadTickNumbers(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

// What ReadTickNumbers does, field by field: the road of all fields that are not short plain numbers.
void ReadTickNumbersPlainly(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

} // namespace zantroq
