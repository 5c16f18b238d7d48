#ifndef ZUM_CORE_BASEDESC_H
#define ZUM_CORE_BASEDESC_H

#include <memory>

#include "Export.h"

class TCDescriptorBase;

// Base of every descriptor object: a private copy of the raw descriptor, the
// decoded fields of the subclass, and a clone that decodes the copy again.
// A tag above 0xFF is 0x7F00 plus the descriptor_tag_extension.
class ZUM_EXPORT TCBaseDesc {
public:
    explicit TCBaseDesc(int tag);
    virtual ~TCBaseDesc();
    // Frees what the subclass allocated for its decoded fields.
    virtual void DeleteAll() = 0;
    // A new object equal to this one, owned by the caller.
    virtual TCBaseDesc* Fork() const = 0;
    virtual int Tag() const;

    // `data` points to the tag byte. Returns descriptor_length + 2.
    int Parse(const unsigned char* data);
    int Length() const { return m_length + 2; }
    // Copy of the raw descriptor; refuses to truncate.
    bool GetDescriptor(unsigned char* buffer, int* size) const;
    bool FlagEqual(const TCBaseDesc* other) const;
    // Table id of the loop that carried the descriptor; -1 before a loop set it.
    int TableId() const { return m_tableId; }

    TCBaseDesc(const TCBaseDesc&) = delete;
    TCBaseDesc& operator=(const TCBaseDesc&) = delete;

protected:
    // Decoding hooks: return the payload bytes consumed. A class overrides one.
    virtual int t_Parse(const unsigned char* payload, unsigned char length);
    virtual int t_Parse(unsigned char* payload, unsigned char length);

    // For Fork(): the table id, then a fresh decode of the raw copy.
    template <class T>
    T* t_ForkAs(T* clone) const
    {
        if (m_rawLength >= 1) {
            clone->m_tableId = m_tableId;
            clone->Parse(m_pRaw.get());
        }
        return clone;
    }

    std::unique_ptr<unsigned char[]> m_pRaw;
    int m_rawLength = 0;
    int m_tag;
    unsigned char m_length = 0;
    int m_tableId = -1;

    friend class TCDescriptorBase;
};

// A tag that nobody knows: only the raw copy is kept.
class ZUM_EXPORT TCDescDefault : public TCBaseDesc {
public:
    explicit TCDescDefault(int tag);
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;
};

#endif
