#ifndef ZUM_CORE_PRIVATETAG_H
#define ZUM_CORE_PRIVATETAG_H

// Internal: tags 0x80..0xFE belong to whoever owns the private data specifier in force.
inline bool IsPrivateTag(int tag)
{
    return tag >= 0x80 && tag <= 0xFE;
}

#endif
