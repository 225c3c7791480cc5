// The six numbers of a tick line. One thread's data, no state.
#pragma once

#include "market/HistoryFields.h"
#include "market/TickBatch.h"

namespace zantroq {

// Fills the prices, sizes and numbers of the tick `at`. REQUIRES: nine fields.
void ReadTickNumbers(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

// Slow path of ReadTickNumbers, field by field: for every field that is not a short plain number.
void ReadTickNumbersPlainly(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

} // namespace zantroq
