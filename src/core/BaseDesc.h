#ifndef ZUM_CORE_BASEDESC_H
#define ZUM_CORE_BASEDESC_H

#include <memory>

#include "Export.h"

class TCDescriptorBase;
class TCDescriptorHash;

// Base of every descriptor object: a private copy of the raw descriptor, the
// decoded fields of the subclass, and a clone that decodes the copy again.
// A tag above 0xFF is 0x7F00 plus the descriptor_tag_extension.
//
// How a descriptor class holds what it decodes (every class follows this, so
// that decoding a loop costs one heap block per descriptor, the object):
// - The raw copy is the only copy of the bytes. `payload` in t_Parse points
//   into it and stays put for the object's life; a Fork decodes its own copy.
//   A copy made by a loop lives in its container's block, one per loop.
// - A text or byte run is a TTRawRun (offset and length in the payload), made
//   with t_Run and read with t_At; its accessors copy out of the raw copy.
// - A loop of fixed-size records keeps the run of the loop and reads record i
//   on access; a record handed out by pointer, or a loop of variable-length
//   records that is read by index, may keep one vector of small records built
//   in t_Parse (runs and numbers, never owned copies of bytes).
// - Decoded numbers are members; nothing else is allocated. DeleteAll resets
//   the fields to their empty values.
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
    // Where a run of bytes lies in the payload.
    struct TTRawRun {
        unsigned char offset = 0;
        unsigned char length = 0;
    };

    // Decoding hooks: return the payload bytes consumed. A class overrides one.
    virtual int t_Parse(const unsigned char* payload, unsigned char length);
    virtual int t_Parse(unsigned char* payload, unsigned char length);

    // The payload of the raw copy; null while there is none.
    const unsigned char* t_Payload() const { return m_pRaw ? m_pRaw + 2 : nullptr; }
    // The run of `length` bytes at `at`, a position in the payload t_Parse got.
    TTRawRun t_Run(const unsigned char* payload, const unsigned char* at, int length) const
    {
        TTRawRun run;
        run.offset = static_cast<unsigned char>(at - payload);
        run.length = static_cast<unsigned char>(length);
        return run;
    }
    // The first byte of a run; null for an empty run or no raw copy.
    const unsigned char* t_At(TTRawRun run) const
    {
        return m_pRaw && run.length ? m_pRaw + 2 + run.offset : nullptr;
    }

    // For Fork(): the table id, then a fresh decode of the raw copy.
    // The clone is owned from its creation, so that a failed copy frees it.
    template <class T>
    T* t_ForkAs(T* clone) const
    {
        std::unique_ptr<T> owned(clone);
        if (m_rawLength >= 1) {
            owned->m_tableId = m_tableId;
            owned->Parse(m_pRaw);
        }
        return owned.release();
    }

    // The raw copy: owned, or borrowed from the block of the container that
    // owns this object (m_ownsRaw false).
    const unsigned char* m_pRaw = nullptr;
    int m_rawLength = 0;
    int m_tag;
    unsigned char m_length = 0;
    bool m_ownsRaw = false;
    int m_tableId = -1;

private:
    // Decodes a descriptor whose bytes already lie in a container's block.
    int m_ParseInPlace(const unsigned char* data);
    int m_Decode();
    void m_FreeRaw();

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
