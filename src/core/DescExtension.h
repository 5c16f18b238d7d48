#ifndef ZUM_CORE_DESCEXTENSION_H
#define ZUM_CORE_DESCEXTENSION_H

#include "BaseDesc.h"

// Tag 0x7F: its identity is 0x7F00 plus the descriptor_tag_extension.
class ZUM_EXPORT TCDescExtension : public TCBaseDesc {
public:
    TCDescExtension();
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;
    // 0x7F00 plus the extension byte; -1 until a body with that byte is held.
    int Tag() const override;

    // The object for the extension descriptor at `data` (tag byte), or null
    // for null data. `pds` is the running private data specifier.
    static TCBaseDesc* ProcessExtensionDescriptor(const unsigned char* data, unsigned int pds);

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
