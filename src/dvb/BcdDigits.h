#ifndef ZUM_DVB_BCDDIGITS_H
#define ZUM_DVB_BCDDIGITS_H

// Internal: the value of the first `digits` BCD digits at `data`, high nibble
// first. A nibble above 9 is taken at its face value, as the stream sends it.
inline unsigned int ZumBcdDigits(const unsigned char* data, int digits)
{
    unsigned int value = 0;
    for (int i = 0; i < digits; ++i) {
        const unsigned char byte = data[i / 2];
        value = value * 10u + ((i % 2 == 0) ? (byte >> 4) : (byte & 0x0F));
    }
    return value;
}

#endif
