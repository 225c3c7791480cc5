#include "market/TickNumbers.h"

#include "market/LineNumbers.h"
#include "market/StoredFields.h"
#include "platform/parse/DigitPairs.h"

namespace zantroq {

void ReadTickNumbersPlainly(const HistoryFields& fields, sTickBatch& ticks, std::size_t at)
{
    ticks.Last[at] = PriceField(fields, 2);
    ticks.Size[at] = StoredInteger(UnsignedField(fields, 3));
    ticks.TotalVolume[at] = IntegerField(fields, 4);
    ticks.Bid[at] = PriceField(fields, 5);
    ticks.Ask[at] = PriceField(fields, 6);
    ticks.TickId[at] = StoredInteger(UnsignedField(fields, 7));
}

#if defined(__SSE2__)

namespace {

// Marks the fields that are longer than eight characters: bit i for field 2 + i, fields 2 to 7.
unsigned MarkLongFields(const HistoryFields& fields)
{
    const auto longOf = [&](int first) {
        const __m128i starts = _mm_loadu_si128(reinterpret_cast<const __m128i*>(fields.Starts() + first));
        const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(fields.Starts() + first + 1));
        const __m128i tooLong = _mm_cmpgt_epi32(_mm_sub_epi32(next, starts), _mm_set1_epi32(8 + 1));
        return static_cast<unsigned>(_mm_movemask_ps(_mm_castsi128_ps(tooLong)));
    };
    return longOf(2) | (longOf(5) & 7) << 3;
}

} // namespace

void ReadTickNumbers(const HistoryFields& fields, sTickBatch& ticks, std::size_t at)
{
    constexpr unsigned VolumeBit = 1 << (4 - 2), VolumeHalf = 0xFF00;
    const unsigned longFields = MarkLongFields(fields);
    if ((longFields & ~VolumeBit) != 0 || fields.Before(2) < 8) {
        ReadTickNumbersPlainly(fields, ticks, at);
        return;
    }
    CDigitPair quotes(fields.End(5), fields.End(6)), lastAndVolume(fields.End(2), fields.End(4));
    const CDigitPair sizeAndId(fields.End(3), fields.End(7));
    // Only the volume is expected to have more than eight digits, so it has a slow path of its own.
    const bool plainVolume = (longFields | (lastAndVolume.MarkNoDigits() & VolumeHalf)) == 0;
    __m128d quotePowers, lastPower;
    if (!quotes.TakePoints(quotePowers) || !lastAndVolume.TakePoints(lastPower) ||
        sizeAndId.MarkNoDigits() != 0) {
        ReadTickNumbersPlainly(fields, ticks, at);
        return;
    }
    const __m128i prices = CDigitPair::Values(quotes, lastAndVolume);
    const __m128i counts = CDigitPair::Values(sizeAndId, sizeAndId);
    // Integers below 2^53 and powers of ten up to 1e22 are exact, so one division is correctly rounded.
    const __m128d quoteValues = _mm_div_pd(_mm_cvtepi32_pd(prices), quotePowers);
    const __m128i others = _mm_unpackhi_epi64(prices, prices);
    _mm_storel_pd(&ticks.Bid[at], quoteValues);
    _mm_storeh_pd(&ticks.Ask[at], quoteValues);
    _mm_store_sd(&ticks.Last[at], _mm_div_sd(_mm_cvtepi32_pd(others), lastPower));
    ticks.Size[at] = _mm_cvtsi128_si32(counts);
    ticks.TickId[at] = _mm_cvtsi128_si32(_mm_shuffle_epi32(counts, 1));
    ticks.TotalVolume[at] =
        plainVolume ? _mm_cvtsi128_si32(_mm_shuffle_epi32(others, 1)) : IntegerField(fields, 4);
}

#else

void ReadTickNumbers(const HistoryFields& fields, sTickBatch& ticks, std::size_t at)
{
    ReadTickNumbersPlainly(fields, ticks, at);
}

#endif

} // namespace zantroq
