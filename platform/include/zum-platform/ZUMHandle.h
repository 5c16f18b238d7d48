#ifndef ZUM_PLATFORM_ZUMHANDLE_H
#define ZUM_PLATFORM_ZUMHANDLE_H

// The key under which the platform answers. The parser copies it and hands it
// back; it never looks inside.
struct ZUMHandle {
    unsigned int word = 1;
    unsigned char first = 0;
    unsigned char second = 0;

    constexpr ZUMHandle() = default;
    constexpr ZUMHandle(unsigned int w, unsigned char a, unsigned char b) : word(w), first(a), second(b) {}

    constexpr bool operator==(const ZUMHandle& o) const
    {
        return word == o.word && first == o.first && second == o.second;
    }
    constexpr bool operator!=(const ZUMHandle& o) const { return !(*this == o); }
};

// The value built by code that has no handle of its own.
constexpr ZUMHandle kZUMDefaultHandle(1, 0, 0);

#endif
