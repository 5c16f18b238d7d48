// GStreamer's mpegts library on the same sections, as a demultiplexer feeds
// it: each section is handed over in a buffer of its own
// (gst_mpegts_section_new takes ownership), the table getter decodes it, and
// the descriptors that the library decodes into objects are parsed with the
// matching gst_mpegts_descriptor_parse_* call. Descriptors that the library
// keeps raw (CA, AC-3) are left raw here too.

// The mpegts API is marked unstable; the benchmark follows the installed one.
#define GST_USE_UNSTABLE_API
#include <gst/gst.h>
#include <gst/mpegts/mpegts.h>

#include "BenchCommon.h"

namespace zumbench {

namespace {

GstMpegtsSection* NewSection(const Table& table, const Bytes& bytes)
{
    auto* copy = static_cast<guint8*>(g_memdup2(bytes.data(), bytes.size()));
    return gst_mpegts_section_new(table.pid, copy, bytes.size());
}

// Parses one descriptor by its tag; answers whether it was decoded.
bool ParseDescriptor(const GstMpegtsDescriptor* d)
{
    switch (d->tag) {
    case 0x0A: {
        GstMpegtsISO639LanguageDescriptor* res = nullptr;
        if (!gst_mpegts_descriptor_parse_iso_639_language(d, &res))
            return false;
        gst_mpegts_iso_639_language_descriptor_free(res);
        return true;
    }
    case 0x52: {
        guint8 tag = 0;
        return gst_mpegts_descriptor_parse_dvb_stream_identifier(d, &tag);
    }
    case 0x56: {
        const guint count = gst_mpegts_descriptor_parse_dvb_teletext_nb(d);
        for (guint i = 0; i < count; ++i) {
            gchar* language = nullptr;
            GstMpegtsDVBTeletextType type;
            guint8 magazine = 0, page = 0;
            if (gst_mpegts_descriptor_parse_dvb_teletext_idx(d, i, &language, &type, &magazine, &page))
                g_free(language);
        }
        return count > 0;
    }
    case 0x59: {
        const guint count = gst_mpegts_descriptor_parse_dvb_subtitling_nb(d);
        for (guint i = 0; i < count; ++i) {
            gchar* language = nullptr;
            guint8 type = 0;
            guint16 composition = 0, ancillary = 0;
            if (gst_mpegts_descriptor_parse_dvb_subtitling_idx(d, i, &language, &type, &composition, &ancillary))
                g_free(language);
        }
        return count > 0;
    }
    case 0x40: {
        gchar* name = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_network_name(d, &name))
            return false;
        g_free(name);
        return true;
    }
    case 0x47: {
        gchar* name = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_bouquet_name(d, &name))
            return false;
        g_free(name);
        return true;
    }
    case 0x4A: {
        GstMpegtsDVBLinkageDescriptor* res = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_linkage(d, &res))
            return false;
        gst_mpegts_dvb_linkage_descriptor_free(res);
        return true;
    }
    case 0x41: {
        GPtrArray* list = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_service_list(d, &list))
            return false;
        g_ptr_array_unref(list);
        return true;
    }
    case 0x48: {
        GstMpegtsDVBServiceType type;
        gchar* name = nullptr;
        gchar* provider = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_service(d, &type, &name, &provider))
            return false;
        g_free(name);
        g_free(provider);
        return true;
    }
    case 0x4D: {
        gchar* language = nullptr;
        gchar* name = nullptr;
        gchar* text = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_short_event(d, &language, &name, &text))
            return false;
        g_free(language);
        g_free(name);
        g_free(text);
        return true;
    }
    case 0x4E: {
        GstMpegtsExtendedEventDescriptor* res = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_extended_event(d, &res))
            return false;
        gst_mpegts_extended_event_descriptor_free(res);
        return true;
    }
    case 0x50: {
        GstMpegtsComponentDescriptor* res = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_component(d, &res))
            return false;
        gst_mpegts_dvb_component_descriptor_free(res);
        return true;
    }
    case 0x54: {
        GPtrArray* content = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_content(d, &content))
            return false;
        g_ptr_array_unref(content);
        return true;
    }
    case 0x55: {
        GPtrArray* rating = nullptr;
        if (!gst_mpegts_descriptor_parse_dvb_parental_rating(d, &rating))
            return false;
        g_ptr_array_unref(rating);
        return true;
    }
    case 0x5A: {
        GstMpegtsTerrestrialDeliverySystemDescriptor res;
        return gst_mpegts_descriptor_parse_terrestrial_delivery_system(d, &res);
    }
    case 0x5F: {
        guint32 specifier = 0;
        guint8* data = nullptr;
        guint8 length = 0;
        if (!gst_mpegts_descriptor_parse_dvb_private_data_specifier(d, &specifier, &data, &length))
            return false;
        g_free(data);
        return true;
    }
    case 0x83: {
        GstMpegtsLogicalChannelDescriptor res;
        return gst_mpegts_descriptor_parse_logical_channel(d, &res);
    }
    default: return false;
    }
}

int ParseDescriptors(const GPtrArray* descriptors)
{
    int decoded = 0;
    for (guint i = 0; descriptors && i < descriptors->len; ++i)
        decoded += ParseDescriptor(static_cast<const GstMpegtsDescriptor*>(g_ptr_array_index(descriptors, i)));
    return decoded;
}

// One pass of a family: every section of the version decoded; answers the
// descriptors parsed (the PAT: the programs).
int Pass(Family family, const Table& table, uint64_t n)
{
    int count = 0;
    for (const Bytes& bytes : table.Pass(n)) {
        GstMpegtsSection* section = NewSection(table, bytes);
        switch (family) {
        case Family::Pat: {
            GPtrArray* programs = gst_mpegts_section_get_pat(section);
            if (programs) {
                for (guint i = 0; i < programs->len; ++i)
                    count += static_cast<const GstMpegtsPatProgram*>(g_ptr_array_index(programs, i))->program_number != 0;
                g_ptr_array_unref(programs);
            }
            break;
        }
        case Family::Pmt:
            if (const GstMpegtsPMT* pmt = gst_mpegts_section_get_pmt(section)) {
                count += ParseDescriptors(pmt->descriptors);
                for (guint i = 0; i < pmt->streams->len; ++i)
                    count += ParseDescriptors(
                        static_cast<const GstMpegtsPMTStream*>(g_ptr_array_index(pmt->streams, i))->descriptors);
            }
            break;
        case Family::Nit:
            if (const GstMpegtsNIT* nit = gst_mpegts_section_get_nit(section)) {
                count += ParseDescriptors(nit->descriptors);
                for (guint i = 0; i < nit->streams->len; ++i)
                    count += ParseDescriptors(
                        static_cast<const GstMpegtsNITStream*>(g_ptr_array_index(nit->streams, i))->descriptors);
            }
            break;
        case Family::Bat:
            if (const GstMpegtsBAT* bat = gst_mpegts_section_get_bat(section)) {
                count += ParseDescriptors(bat->descriptors);
                for (guint i = 0; i < bat->streams->len; ++i)
                    count += ParseDescriptors(
                        static_cast<const GstMpegtsBATStream*>(g_ptr_array_index(bat->streams, i))->descriptors);
            }
            break;
        case Family::Sdt:
            if (const GstMpegtsSDT* sdt = gst_mpegts_section_get_sdt(section)) {
                for (guint i = 0; i < sdt->services->len; ++i)
                    count += ParseDescriptors(
                        static_cast<const GstMpegtsSDTService*>(g_ptr_array_index(sdt->services, i))->descriptors);
            }
            break;
        case Family::EitPf:
        case Family::EitSchedule:
        case Family::EitIsdb:
            if (const GstMpegtsEIT* eit = gst_mpegts_section_get_eit(section)) {
                for (guint i = 0; i < eit->events->len; ++i)
                    count += ParseDescriptors(
                        static_cast<const GstMpegtsEITEvent*>(g_ptr_array_index(eit->events, i))->descriptors);
            }
            break;
        case Family::Mgt:
            if (const GstMpegtsAtscMGT* mgt = gst_mpegts_section_get_atsc_mgt(section))
                count += static_cast<int>(mgt->tables->len);
            break;
        case Family::Tvct:
            if (const GstMpegtsAtscVCT* vct = gst_mpegts_section_get_atsc_tvct(section))
                count += static_cast<int>(vct->sources->len);
            break;
        case Family::PsipEit:
            if (const GstMpegtsAtscEIT* eit = gst_mpegts_section_get_atsc_eit(section))
                count += static_cast<int>(eit->events->len);
            break;
        default: break;
        }
        gst_mpegts_section_unref(section);
    }
    return count;
}

void Section(benchmark::State& state, Family family)
{
    const Table& table = TableOf(family);
    if (Pass(family, table, 0) != DecodedByPeers(family) || Pass(family, table, 1) != DecodedByPeers(family))
        return state.SkipWithError("not decoded by GStreamer");
    RunPasses(state, table, [&](uint64_t n) { benchmark::DoNotOptimize(Pass(family, table, n)); });
}

void DescriptorLoop(benchmark::State& state)
{
    const Table& table = TableOf(Family::DescriptorLoop);
    Bytes loop = table.versions[0].front();
    auto decode = [&]() {
        GPtrArray* descriptors = gst_mpegts_parse_descriptors(loop.data(), loop.size());
        const int decoded = ParseDescriptors(descriptors);
        if (descriptors)
            g_ptr_array_unref(descriptors);
        return decoded;
    };
    if (decode() != kDescriptorLoopDescriptors)
        return state.SkipWithError("descriptor loop not decoded by GStreamer");
    RunPasses(state, table, [&](uint64_t) { benchmark::DoNotOptimize(decode()); });
}

void Initialize()
{
    static bool done = false;
    if (done)
        return;
    done = true;
    gst_init(nullptr, nullptr);
    gst_mpegts_initialize();
}

} // namespace

void RegisterGStreamer(Family family)
{
    Initialize();
    switch (family) {
    case Family::Svct:
    case Family::Aeit:
    case Family::Sgt:
    case Family::Tkgs:
    case Family::Fst: break; // not decoded by this library
    case Family::EitScheduleCompressed: break; // table id 0x80 is not an EIT to GStreamer
    case Family::DescriptorLoop: Register(family, kGStreamer, DescriptorLoop); break;
    default: Register(family, kGStreamer, [family](benchmark::State& state) { Section(state, family); }); break;
    }
}

} // namespace zumbench
