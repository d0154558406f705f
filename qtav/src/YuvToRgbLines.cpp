#include "qtav/src/YuvToRgbLines.h"

#if defined(__x86_64__) && defined(__GNUC__)
#include <immintrin.h>
#define HAS_AVX2_LINES
#endif

namespace QtAV {

#ifdef HAS_AVX2_LINES

namespace {

#define AVX2 __attribute__((target("avx2")))

constexpr int step = 16;

/// Doubles eight samples: each stays in place, followed by the middle between it and the next.
AVX2 inline __m256i doubled(const int16_t* samples)
{
    const __m128i own = _mm_loadu_si128(reinterpret_cast<const __m128i*>(samples));
    const __m128i next = _mm_loadu_si128(reinterpret_cast<const __m128i*>(samples + 1));
    const __m128i sum = _mm_add_epi16(_mm_add_epi16(own, next), _mm_set1_epi16(1));
    const __m128i middle = _mm_srai_epi16(sum, 1);
    return _mm256_set_m128i(_mm_unpackhi_epi16(own, middle), _mm_unpacklo_epi16(own, middle));
}

AVX2 inline __m256i rounded(__m256i value)
{
    return _mm256_srai_epi16(_mm256_add_epi16(value, _mm256_set1_epi16(16)), 5);
}

/// Stores sixteen pixels; the channels are saturated to bytes.
AVX2 inline void store(uint32_t* pixels, __m256i red, __m256i green, __m256i blue)
{
    const __m256i blueRed = _mm256_packus_epi16(blue, red);
    const __m256i greenAlpha = _mm256_packus_epi16(green, _mm256_set1_epi16(255));
    const __m256i blueGreen = _mm256_unpacklo_epi8(blueRed, greenAlpha);
    const __m256i redAlpha = _mm256_unpackhi_epi8(blueRed, greenAlpha);
    const __m256i low = _mm256_unpacklo_epi16(blueGreen, redAlpha);
    const __m256i high = _mm256_unpackhi_epi16(blueGreen, redAlpha);
    auto* const target = reinterpret_cast<__m256i*>(pixels);
    _mm256_storeu_si256(target, _mm256_permute2x128_si256(low, high, 0x20));
    _mm256_storeu_si256(target + 1, _mm256_permute2x128_si256(low, high, 0x31));
}

AVX2 int convertByAvx2(const uint8_t* luma, const int16_t* cb, const int16_t* cr, uint32_t* pixels,
                       int count, const YuvToRgb::Matrix& m)
{
    const __m256i black = _mm256_set1_epi16(m.black);
    const __m256i lumaFactor = _mm256_set1_epi16(m.luma);
    const __m256i crToRed = _mm256_set1_epi16(m.crToRed);
    const __m256i cbToGreen = _mm256_set1_epi16(m.cbToGreen);
    const __m256i crToGreen = _mm256_set1_epi16(m.crToGreen);
    const __m256i cbToBlue = _mm256_set1_epi16(m.cbToBlue);
    int i = 0;
    for (; i + step <= count; i += step) {
        const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(luma + i));
        const __m256i wide = _mm256_slli_epi16(_mm256_cvtepu8_epi16(bytes), 7);
        const __m256i y = _mm256_mulhrs_epi16(_mm256_sub_epi16(wide, black), lumaFactor);
        const __m256i u = doubled(cb + i / 2);
        const __m256i v = doubled(cr + i / 2);
        const __m256i red = _mm256_add_epi16(y, _mm256_mulhrs_epi16(v, crToRed));
        const __m256i blue = _mm256_add_epi16(y, _mm256_mulhrs_epi16(u, cbToBlue));
        const __m256i green =
            _mm256_sub_epi16(_mm256_sub_epi16(y, _mm256_mulhrs_epi16(u, cbToGreen)),
                             _mm256_mulhrs_epi16(v, crToGreen));
        store(pixels + i, rounded(red), rounded(green), rounded(blue));
    }
    return i;
}

} // namespace

int convertHalvedLine(const uint8_t* luma, const int16_t* cb, const int16_t* cr, uint32_t* pixels,
                      int count, const YuvToRgb::Matrix& matrix)
{
    static const bool hasAvx2 = __builtin_cpu_supports("avx2");
    return hasAvx2 ? convertByAvx2(luma, cb, cr, pixels, count, matrix) : 0;
}

#else

int convertHalvedLine(const uint8_t*, const int16_t*, const int16_t*, uint32_t*, int,
                      const YuvToRgb::Matrix&)
{
    return 0;
}

#endif

} // namespace QtAV
