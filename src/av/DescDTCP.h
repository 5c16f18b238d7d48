#ifndef ZUM_AV_DESCDTCP_H
#define ZUM_AV_DESCDTCP_H

#include "../core/BaseDesc.h"

// Copy control and content labels of a program: DTCP, redistribution
// control and content labeling.

// DTCP_descriptor (0x88 in program tables).
class ZUM_EXPORT TCDescDTCP : public TCBaseDesc {
public:
    TCDescDTCP();
    ~TCDescDTCP() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short CASystemId() const { return m_caSystemId; }
    unsigned char RetentionMoveMode() const { return m_retentionMoveMode; }
    unsigned char RetentionState() const { return m_retentionState; }
    unsigned char EPN() const { return m_epn; }
    unsigned char DTCPCCI() const { return m_dtcpCci; }
    unsigned char ImageConstraintToken() const { return m_imageConstraintToken; }
    unsigned char APS() const { return m_aps; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_caSystemId = 0;
    unsigned char m_retentionMoveMode = 0;
    unsigned char m_retentionState = 0;
    unsigned char m_epn = 0;
    unsigned char m_dtcpCci = 0;
    unsigned char m_imageConstraintToken = 0;
    unsigned char m_aps = 0;
};

// redistribution_control_descriptor (0xAA, ATSC); a caller parses it. The
// body is kept as sent.
class ZUM_EXPORT TCDescRedistributionControl : public TCBaseDesc {
public:
    TCDescRedistributionControl();
    ~TCDescRedistributionControl() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char RCInformationLength() const { return m_information.length; }
    // Copy that truncates and answers false.
    bool GetRCInformation(unsigned char* out, unsigned char* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTRawRun m_information;
};

// content_labeling_descriptor (0x24).
class ZUM_EXPORT TCDescContentLabeling : public TCBaseDesc {
public:
    TCDescContentLabeling();
    ~TCDescContentLabeling() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short ApplicationFormat() const { return m_applicationFormat; }
    unsigned int ApplicationFormatIdentifier() const { return m_applicationFormatIdentifier; }
    unsigned char ContentReferenceIdFlag() const { return m_contentReferenceIdFlag; }
    unsigned char ContentTimeBaseIndicator() const { return m_contentTimeBaseIndicator; }
    unsigned char ContentReferenceIdLength() const { return m_contentReferenceId.length; }
    unsigned long long ContentTimeBaseValue() const { return m_contentTimeBaseValue; }
    unsigned long long MetadataTimeBaseValue() const { return m_metadataTimeBaseValue; }
    unsigned char ContentId() const { return m_contentId; }
    unsigned char TimeBaseAssociationDataLength() const { return m_timeBaseAssociationDataLength; }
    int PrivateDataLength() const { return m_privateData.length; }

    // Copies that refuse to truncate (the size becomes 0).
    bool ContentReferenceIdByte(unsigned char* out, unsigned char* length) const;
    bool PrivateData(unsigned char* out, int* length) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_applicationFormat = 0;
    unsigned int m_applicationFormatIdentifier = 0;
    unsigned char m_contentReferenceIdFlag = 0;
    unsigned char m_contentTimeBaseIndicator = 0;
    TTRawRun m_contentReferenceId;
    unsigned long long m_contentTimeBaseValue = 0;
    unsigned long long m_metadataTimeBaseValue = 0;
    unsigned char m_contentId = 0;
    unsigned char m_timeBaseAssociationDataLength = 0;
    TTRawRun m_privateData;
};

#endif
