#ifndef ZUM_ATSC_DESCCAPTIONSERVICE_H
#define ZUM_ATSC_DESCCAPTIONSERVICE_H

#include "../core/BaseDesc.h"

// caption_service_descriptor (0x86): the caption services of a video
// stream, six-byte records read from the raw copy on access.
class ZUM_EXPORT TCDescCaptionService : public TCBaseDesc {
public:
    static constexpr unsigned int kAbsent = 0xFFFFFFFF;

    TCDescCaptionService();
    ~TCDescCaptionService() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // As on air, also when fewer records came.
    unsigned char NumberOfServices() const { return m_numberOfServices; }
    // Without services: assertion, 0. A record that is not there: kAbsent.
    unsigned int Language(unsigned char index) const;
    unsigned int CcType(unsigned char index) const;
    // 0xFF for a digital service.
    unsigned int Line21Field(unsigned char index) const;
    // 0xFF for an analogue service.
    unsigned int CaptionServiceNumber(unsigned char index) const;
    unsigned int EasyReader(unsigned char index) const;
    unsigned int WideAspectRatio(unsigned char index) const;
    unsigned int KoreanCode(unsigned char index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    // The record, or null with `answer` set to what the accessor gives instead.
    const unsigned char* m_Record(unsigned char index, unsigned int& answer) const;
    // `read` of the record at `index`, or the answer for a missing one.
    template <class Read>
    unsigned int m_Field(unsigned char index, Read read) const
    {
        unsigned int answer = 0;
        const unsigned char* record = m_Record(index, answer);
        return record ? read(record) : answer;
    }

    unsigned char m_numberOfServices = 0;
    unsigned char m_recordsHeld = 0;
    TTRawRun m_records;
};

#endif
