#ifndef ZUM_ISDB_DESCSCHEDULING_H
#define ZUM_ISDB_DESCSCHEDULING_H

#include <string>

#include "../core/BaseDesc.h"

// scheduling_descriptor of TS 102 006 (0x01): when an update is on air,
// how often and for how long, with the raw 40-bit times.
class ZUM_EXPORT TCDescScheduling : public TCBaseDesc {
public:
    TCDescScheduling();
    ~TCDescScheduling() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // MJD and BCD time as they stand, not converted.
    unsigned long long StartDateTime() const { return m_startDateTime; }
    unsigned long long EndDateTime() const { return m_endDateTime; }
    unsigned char FinalAvailability() const { return m_finalAvailability; }
    unsigned char PeriodicityFlag() const { return m_periodicityFlag; }
    unsigned char PeriodUnit() const { return m_periodUnit; }
    unsigned char DurationUnit() const { return m_durationUnit; }
    unsigned char EstimatedCycleTimeUnit() const { return m_estimatedCycleTimeUnit; }
    unsigned char Period() const { return m_period; }
    unsigned char Duration() const { return m_duration; }
    unsigned char EstimatedCycleTime() const { return m_estimatedCycleTime; }
    int PrivateLength() const { return m_private.length; }
    // The private bytes; null when there are none.
    const unsigned char* PrivateData() const { return t_At(m_private); }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned long long m_startDateTime = 0;
    unsigned long long m_endDateTime = 0;
    unsigned char m_finalAvailability = 0;
    unsigned char m_periodicityFlag = 0;
    unsigned char m_periodUnit = 0;
    unsigned char m_durationUnit = 0;
    unsigned char m_estimatedCycleTimeUnit = 0;
    unsigned char m_period = 0;
    unsigned char m_duration = 0;
    unsigned char m_estimatedCycleTime = 0;
    TTRawRun m_private;
};

// service_availability_descriptor (0x72): the cells where a service is, or
// is not, available; the cell ids are read from the raw copy.
class ZUM_EXPORT TCDescServiceAvailability : public TCBaseDesc {
public:
    TCDescServiceAvailability();
    ~TCDescServiceAvailability() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned char AvailabilityFlag() const { return m_availabilityFlag; }
    // (length - 1) / 2, also when the descriptor is too short to hold an id.
    int Count() const { return m_count; }
    // 0xFFFF for an index outside the ids stored.
    unsigned short CellId(int index) const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned char m_availabilityFlag = 0;
    int m_count = 0;
    int m_stored = 0;
};

// service_identifier_descriptor (0x71): the textual service identifier,
// the whole body with any zeros in it.
class ZUM_EXPORT TCDescServiceIdentifier : public TCBaseDesc {
public:
    TCDescServiceIdentifier();
    ~TCDescServiceIdentifier() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    std::string ServiceIdentifier() const;

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    TTRawRun m_identifier;
};

// PDC_descriptor (0x69), made by callers: the programme identification label.
class ZUM_EXPORT TCDescPDC : public TCBaseDesc {
public:
    TCDescPDC();
    ~TCDescPDC() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    // The low 20 bits of the first three bytes.
    unsigned int ProgrammeIdentificationLabel() const { return m_label; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned int m_label = 0;
};

// transport_stream_id descriptor (0x92), made by callers.
class ZUM_EXPORT TCDescTransportStreamID : public TCBaseDesc {
public:
    TCDescTransportStreamID();
    ~TCDescTransportStreamID() override;
    void DeleteAll() override;
    TCBaseDesc* Fork() const override;

    unsigned short TransportStreamId() const { return m_transportStreamId; }

protected:
    int t_Parse(const unsigned char* payload, unsigned char length) override;

private:
    unsigned short m_transportStreamId = 0;
};

#endif
