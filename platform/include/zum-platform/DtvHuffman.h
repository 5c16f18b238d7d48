#ifndef ZUM_PLATFORM_DTVHUFFMAN_H
#define ZUM_PLATFORM_DTVHUFFMAN_H

// Decoder of the compressed segments of North American multiple string text.
// compressionType 0 (none) copies the bytes; the Huffman-coded types are
// refused because their code tables are not carried yet.
class TCDtvHuffman {
public:
    TCDtvHuffman() = default;

    // *targetLength is the capacity in bytes on entry and the bytes written on
    // return. Type 0 copies what fits and answers false when it had to cut;
    // every other type answers false with nothing written.
    bool DecompressString(unsigned int compressionType, const unsigned char* data, unsigned char length,
                          unsigned char* target, unsigned int* targetLength);
};

#endif
