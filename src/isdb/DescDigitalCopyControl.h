#ifndef ZUM_ISDB_DESCDIGITALCOPYCONTROL_H
#define ZUM_ISDB_DESCDIGITALCOPYCONTROL_H

#include <vector>

#include "../core/BaseDesc.h"

// digital_copy_control_descriptor of ARIB (0xC1): the copy and recording
// rules of a service or event, and per component where they differ.
class ZUM_EXPORT TCDescDigitalCopyControl : public TCBaseDesc {
public:
    struct TTCompControl {
        unsigned char componentTag = 0;
        unsigned char digitalRecordingControlData = 0;
        unsigned char maximumBitrateFlag = 0;
        unsigned char copyControlType = 0;
        unsigned char apsControlData = 0; // 0 while copyControlType is 0
        unsigned char maximumBitrate = 0;
    };

    TCDescDigitalCopyControl();
    ~TCDescDigitalCopyControl() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char DigitalRecordingControlData() const { return m_digitalRecordingControlData; }
    unsigned char MaximumBitrateFlag() const { return m_maximumBitrateFlag; }
    unsigned char ComponentControlFlag() const { return m_componentControlFlag; }
    unsigned char CopyControlType() const { return m_copyControlType; }
    // 0 while copy_control_type is 0.
    unsigned char APSControlData() const { return m_apsControlData; }
    unsigned char MaximumBitrate() const { return m_maximumBitrate; }
    // As the stream gives it; the component loop runs to the descriptor's end.
    unsigned char ComponentControlLength() const { return m_componentControlLength; }
    int NumOfComponentControl() const { return static_cast<int>(m_compControlList.size()); }
    // Copies the entry; a bad index asserts and leaves `out` untouched.
    bool ComponentControl(int index, TTCompControl& out) const;
    // False, `out` untouched, for an empty list.
    bool GetComponentControlList(std::vector<TTCompControl>& out) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_digitalRecordingControlData = 0;
    unsigned char m_maximumBitrateFlag = 0;
    unsigned char m_componentControlFlag = 0;
    unsigned char m_copyControlType = 0;
    unsigned char m_apsControlData = 0;
    unsigned char m_maximumBitrate = 0;
    unsigned char m_componentControlLength = 0;
    std::vector<TTCompControl> m_compControlList;
};

// content_availability_descriptor of ARIB (0xDE): what a receiver may do
// with a recording of the event.
class ZUM_EXPORT TCDescContentAvailability : public TCBaseDesc {
public:
    TCDescContentAvailability();
    ~TCDescContentAvailability() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char CopyRestrictionMode() const { return m_copyRestrictionMode; }
    unsigned char ImageConstraintToken() const { return m_imageConstraintToken; }
    unsigned char RetentionMode() const { return m_retentionMode; }
    unsigned char RetentionState() const { return m_retentionState; }
    unsigned char EncryptionMode() const { return m_encryptionMode; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_copyRestrictionMode = 0;
    unsigned char m_imageConstraintToken = 0;
    unsigned char m_retentionMode = 0;
    unsigned char m_retentionState = 0;
    unsigned char m_encryptionMode = 0;
};

#endif
