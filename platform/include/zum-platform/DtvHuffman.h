#ifndef ZUM_PLATFORM_DTVHUFFMAN_H
#define ZUM_PLATFORM_DTVHUFFMAN_H

// Decoder of the segments of North American multiple string text:
// compression type 0 is plain bytes, 1 and 2 the title and description
// Huffman codes of ATSC A/65 (the code list in platform/data/).
class TCDtvHuffman {
public:
    TCDtvHuffman() = default;

    // *targetLength is the capacity in bytes on entry and the bytes written on
    // return (ISO 8859-1 characters, the terminate not included). False when
    // the segment is not usable: an unknown type, a code string that ends
    // before its terminate, or text that had to be cut to the capacity (what
    // fits is written all the same).
    bool DecompressString(unsigned int compressionType, const unsigned char* data, unsigned char length,
                          unsigned char* target, unsigned int* targetLength);
};

#endif
