// Reads the six numbers of a tick line. No state; one thread per batch.
#pragma once

#include "market/HistoryFields.h"
#include "market/TickBatch.h"

namespace zantroq {

// Sets the prices, sizes and numbers of tick `at`. REQUIRES: nine fields.
void ReadTickNumbers(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

// Slow path of ReadTickNumbers, field by field, for lines with a field that is not a short plain number.
void ReadTickNumbersPlainly(const HistoryFields& fields, sTickBatch& ticks, std::size_t at);

} // namespace zantroq
