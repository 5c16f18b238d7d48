// libdvbpsi on the same sections, used the way it is built to be used: the
// sections are packed into TS packets beforehand (TsMux, continuity counters
// running on), and each pass pushes the packets of one table version through
// dvbpsi_packet_push with the table decoder attached (the subtable demux for
// NIT, BAT, SDT and EIT). The decoder reassembles and checks the sections and calls
// back with the whole table; the callback decodes the descriptors that the
// library decodes into objects with the matching dvbpsi_Decode*Dr call, and
// deletes the table.

#include <sys/types.h>

#include <cstdint>
#include <cstdlib>
#include <vector>

// libdvbpsi's headers expect their own order: types first, then the core.
// clang-format off
#include <dvbpsi/dvbpsi.h>
#include <dvbpsi/psi.h>
#include <dvbpsi/descriptor.h>
#include <dvbpsi/demux.h>
#include <dvbpsi/pat.h>
#include <dvbpsi/pmt.h>
#include <dvbpsi/nit.h>
#include <dvbpsi/bat.h>
#include <dvbpsi/sdt.h>
#include <dvbpsi/eit.h>
#include <dvbpsi/dr_0a.h>
#include <dvbpsi/dr_40.h>
#include <dvbpsi/dr_41.h>
#include <dvbpsi/dr_47.h>
#include <dvbpsi/dr_48.h>
#include <dvbpsi/dr_4a.h>
#include <dvbpsi/dr_4d.h>
#include <dvbpsi/dr_4e.h>
#include <dvbpsi/dr_50.h>
#include <dvbpsi/dr_52.h>
#include <dvbpsi/dr_54.h>
#include <dvbpsi/dr_55.h>
#include <dvbpsi/dr_56.h>
#include <dvbpsi/dr_59.h>
#include <dvbpsi/dr_5a.h>
#include <dvbpsi/dr_83.h>
#include <dvbpsi/dr_a0.h>
#include <dvbpsi/dr_a1.h>
#include <dvbpsi/atsc_eit.h>
#include <dvbpsi/atsc_mgt.h>
#include <dvbpsi/atsc_vct.h>
// clang-format on

#include "inspect/TsMux.h"

#include "BenchCommon.h"

namespace zumbench {

namespace {

constexpr size_t kPacketSize = 188;
// Continuity counters wrap at 16: this many passes make a stream that can be
// pushed round and round without a discontinuity.
constexpr uint64_t kCycle = 32;

// Decodes one descriptor by its tag; answers whether it was decoded. The
// decoded form hangs on the descriptor and goes with the table.
bool DecodeDescriptor(dvbpsi_descriptor_t* d)
{
    switch (d->i_tag) {
    case 0x0A: return dvbpsi_DecodeISO639Dr(d) != nullptr;
    case 0x52: return dvbpsi_DecodeStreamIdentifierDr(d) != nullptr;
    case 0x56: return dvbpsi_DecodeTeletextDr(d) != nullptr;
    case 0x59: return dvbpsi_DecodeSubtitlingDr(d) != nullptr;
    case 0x40: return dvbpsi_DecodeNetworkNameDr(d) != nullptr;
    case 0x41: return dvbpsi_DecodeServiceListDr(d) != nullptr;
    case 0x47: return dvbpsi_DecodeBouquetNameDr(d) != nullptr;
    case 0x48: return dvbpsi_DecodeServiceDr(d) != nullptr;
    case 0x4A: return dvbpsi_DecodeLinkageDr(d) != nullptr;
    case 0x4D: return dvbpsi_DecodeShortEventDr(d) != nullptr;
    case 0x4E: return dvbpsi_DecodeExtendedEventDr(d) != nullptr;
    case 0x50: {
        // Deleting the descriptor frees the decoded record but not its text: that is the user's.
        dvbpsi_component_dr_t* component = dvbpsi_DecodeComponentDr(d);
        if (!component)
            return false;
        free(component->i_text);
        component->i_text = nullptr;
        component->i_text_length = 0;
        return true;
    }
    case 0x54: return dvbpsi_DecodeContentDr(d) != nullptr;
    case 0x55: return dvbpsi_DecodeParentalRatingDr(d) != nullptr;
    case 0x5A: return dvbpsi_DecodeTerrDelivSysDr(d) != nullptr;
    case 0x83: return dvbpsi_DecodeLCNDr(d) != nullptr;
    case 0xA0: return dvbpsi_ExtendedChannelNameDr(d) != nullptr;
    case 0xA1: return dvbpsi_DecodeServiceLocationDr(d) != nullptr;
    // No decoder of its own: the specifier is read in place, as a loop walk does.
    case 0x5F: return d->i_length >= 4 && d->p_data[0] == 0x00;
    default: return false;
    }
}

int DecodeDescriptors(dvbpsi_descriptor_t* d)
{
    int decoded = 0;
    for (; d; d = d->p_next)
        decoded += DecodeDescriptor(d);
    return decoded;
}

// What the callbacks saw since the last look.
struct Seen {
    int tables = 0;
    int count = 0; // descriptors decoded (the PAT: programs)
};

void OnPat(void* data, dvbpsi_pat_t* pat)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (const dvbpsi_pat_program_t* p = pat->p_first_program; p; p = p->p_next)
        seen->count += p->i_number != 0;
    dvbpsi_pat_delete(pat);
}

void OnPmt(void* data, dvbpsi_pmt_t* pmt)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    seen->count += DecodeDescriptors(pmt->p_first_descriptor);
    for (dvbpsi_pmt_es_t* es = pmt->p_first_es; es; es = es->p_next)
        seen->count += DecodeDescriptors(es->p_first_descriptor);
    dvbpsi_pmt_delete(pmt);
}

void OnNit(void* data, dvbpsi_nit_t* nit)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    seen->count += DecodeDescriptors(nit->p_first_descriptor);
    for (dvbpsi_nit_ts_t* ts = nit->p_first_ts; ts; ts = ts->p_next)
        seen->count += DecodeDescriptors(ts->p_first_descriptor);
    dvbpsi_nit_delete(nit);
}

void OnBat(void* data, dvbpsi_bat_t* bat)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    seen->count += DecodeDescriptors(bat->p_first_descriptor);
    for (dvbpsi_bat_ts_t* ts = bat->p_first_ts; ts; ts = ts->p_next)
        seen->count += DecodeDescriptors(ts->p_first_descriptor);
    dvbpsi_bat_delete(bat);
}

void OnSdt(void* data, dvbpsi_sdt_t* sdt)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (dvbpsi_sdt_service_t* s = sdt->p_first_service; s; s = s->p_next)
        seen->count += DecodeDescriptors(s->p_first_descriptor);
    dvbpsi_sdt_delete(sdt);
}

void OnEit(void* data, dvbpsi_eit_t* eit)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (dvbpsi_eit_event_t* e = eit->p_first_event; e; e = e->p_next)
        seen->count += DecodeDescriptors(e->p_first_descriptor);
    dvbpsi_eit_delete(eit);
}

// The PSIP tables count their entries and channels, as GStreamer's do; the
// channel descriptors are decoded all the same.
void OnMgt(void* data, dvbpsi_atsc_mgt_t* mgt)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (dvbpsi_atsc_mgt_table_t* t = mgt->p_first_table; t; t = t->p_next) {
        DecodeDescriptors(t->p_first_descriptor);
        ++seen->count;
    }
    dvbpsi_atsc_DeleteMGT(mgt);
}

void OnVct(void* data, dvbpsi_atsc_vct_t* vct)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (dvbpsi_atsc_vct_channel_t* c = vct->p_first_channel; c; c = c->p_next) {
        DecodeDescriptors(c->p_first_descriptor);
        ++seen->count;
    }
    dvbpsi_atsc_DeleteVCT(vct);
}

void OnAtscEit(void* data, dvbpsi_atsc_eit_t* eit)
{
    auto* seen = static_cast<Seen*>(data);
    ++seen->tables;
    for (dvbpsi_atsc_eit_event_t* e = eit->p_first_event; e; e = e->p_next) {
        DecodeDescriptors(e->p_first_descriptor);
        ++seen->count;
    }
    dvbpsi_atsc_DeleteEIT(eit);
}

void OnNewSubtable(dvbpsi_t* handle, uint8_t tableId, uint16_t extension, void* data)
{
    if (tableId == 0x40 || tableId == 0x41)
        dvbpsi_nit_attach(handle, tableId, extension, OnNit, data);
    else if (tableId == 0x4A)
        dvbpsi_bat_attach(handle, tableId, extension, OnBat, data);
    else if (tableId == 0x42 || tableId == 0x46)
        dvbpsi_sdt_attach(handle, tableId, extension, OnSdt, data);
    else if (tableId >= 0x4E && tableId <= 0x6F)
        dvbpsi_eit_attach(handle, tableId, extension, OnEit, data);
    else if (tableId == 0xC7)
        dvbpsi_atsc_AttachMGT(handle, tableId, extension, OnMgt, data);
    else if (tableId == 0xC8 || tableId == 0xC9)
        dvbpsi_atsc_AttachVCT(handle, tableId, extension, OnVct, data);
    else if (tableId == 0xCB)
        dvbpsi_atsc_AttachEIT(handle, tableId, extension, OnAtscEit, data);
}

void Quiet(dvbpsi_t*, const dvbpsi_msg_level_t, const char*) {}

// libdvbpsi's EIT decoder (1.3.3) delivers a table only once its sections
// come round a second time, as a carousel repeats them; its EIT passes carry
// each section twice.
int Carousels(Family family)
{
    return family == Family::EitPf || family == Family::EitSchedule || family == Family::EitIsdb ? 2 : 1;
}

// One decoder with its packets: pass n pushes the packets of version n & 1.
class Decoder {
public:
    explicit Decoder(Family family) : m_family(family), m_handle(dvbpsi_new(Quiet, DVBPSI_MSG_NONE))
    {
        const Table& table = TableOf(family);
        zuminspect::TsMux mux(table.pid);
        for (uint64_t pass = 0; pass < kCycle; ++pass) {
            for (int round = 0; round < Carousels(family); ++round)
                for (const Bytes& section : table.Pass(pass))
                    mux.Add(section);
            m_packets.push_back(mux.Flush());
        }
        switch (family) {
        case Family::Pat: m_attached = dvbpsi_pat_attach(m_handle, OnPat, &m_seen); break;
        case Family::Pmt: m_attached = dvbpsi_pmt_attach(m_handle, kProgramNumber, OnPmt, &m_seen); break;
        default: m_attached = dvbpsi_AttachDemux(m_handle, OnNewSubtable, &m_seen); break;
        }
    }

    ~Decoder()
    {
        if (m_attached) {
            switch (m_family) {
            case Family::Pat: dvbpsi_pat_detach(m_handle); break;
            case Family::Pmt: dvbpsi_pmt_detach(m_handle); break;
            default: dvbpsi_DetachDemux(m_handle); break;
            }
        }
        dvbpsi_delete(m_handle);
    }

    Decoder(const Decoder&) = delete;
    Decoder& operator=(const Decoder&) = delete;

    bool Attached() const { return m_attached; }

    Seen Push(uint64_t pass)
    {
        m_seen = Seen();
        std::vector<uint8_t>& packets = m_packets[pass % kCycle];
        for (size_t at = 0; at + kPacketSize <= packets.size(); at += kPacketSize)
            dvbpsi_packet_push(m_handle, packets.data() + at);
        return m_seen;
    }

private:
    Family m_family;
    dvbpsi_t* m_handle;
    std::vector<std::vector<uint8_t>> m_packets;
    Seen m_seen;
    bool m_attached = false;
};

void Tables(benchmark::State& state, Family family)
{
    const Table& table = TableOf(family);
    Decoder decoder(family);
    if (!decoder.Attached())
        return state.SkipWithError("libdvbpsi decoder not attached");
    // A whole cycle first: every pass must deliver exactly one new table.
    for (uint64_t pass = 0; pass < kCycle; ++pass) {
        const Seen seen = decoder.Push(pass);
        if (seen.tables != 1 || seen.count != DecodedByPeers(family))
            return state.SkipWithError("not decoded by libdvbpsi");
    }
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(decoder.Push(n)); });
}

// The loop alone: descriptor records chained as the table decoders chain
// them, decoded, and deleted.
void DescriptorLoop(benchmark::State& state)
{
    const Table& table = TableOf(Family::DescriptorLoop);
    Bytes loop = table.versions[0].front();
    auto decode = [&]() {
        dvbpsi_descriptor_t* first = nullptr;
        dvbpsi_descriptor_t* last = nullptr;
        for (size_t at = 0; at + 2 <= loop.size() && at + 2 + loop[at + 1] <= loop.size(); at += 2 + loop[at + 1]) {
            dvbpsi_descriptor_t* d = dvbpsi_NewDescriptor(loop[at], loop[at + 1], loop.data() + at + 2);
            if (!d)
                break;
            if (last)
                last->p_next = d;
            else
                first = d;
            last = d;
        }
        const int decoded = DecodeDescriptors(first);
        dvbpsi_DeleteDescriptors(first);
        return decoded;
    };
    if (decode() != kDescriptorLoopDescriptors)
        return state.SkipWithError("descriptor loop not decoded by libdvbpsi");
    RunPasses(state, table, [&](uint64_t) { benchmark::DoNotOptimize(decode()); });
}

} // namespace

void RegisterDvbpsi(Family family)
{
    switch (family) {
    case Family::Svct:
    case Family::Aeit:
    case Family::Sgt:
    case Family::Tkgs:
    case Family::Fst: break; // not decoded by this library
    case Family::EitScheduleCompressed: break; // table id 0x80 is not an EIT to libdvbpsi
    case Family::DescriptorLoop: Register(family, kDvbpsi, DescriptorLoop); break;
    default: Register(family, kDvbpsi, [family](benchmark::State& state) { Tables(state, family); }); break;
    }
}

} // namespace zumbench
