#include "RibbonCallSequence.h"

#include "FuzzFailure.h"
#include "ModuleUnderTest.h"
#include "UiInvariants.h"

#include <CFxHostServices.h>

namespace {
constexpr int kMaxSteps = 48;
constexpr int kMaxDepth = 4;
constexpr int kMaxRecords = 64;

// The ordered identifiers, in and out of letter case, a split button's entries and others.
const char* const kIdentifiers[] = {
    "ID_DRAWCOMPARE_ITEM",
    "ID_GCODE_ITEM",
    "ID_VAULTLINE_ITEM",
    "ID_PK_PARTKIT",
    "id_vaultline_item",
    "Id_GCode_Item",
    "ID_ENTRY_A",
    "id_entry_a",
    "ID_ENTRY_B",
    "ID_OTHER",
    "",
};
const char* const kTypes[] = {"command", "split", "separator", "Split", ""};
// Tab, panel, row: the Add-Ins row, rows of the host's own tabs, and rows nobody has yet.
const char* const kPlaces[][3] = {
    {"ID_RibbonAddInsTab", "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow"},
    {"id_ribbonaddinstab", "ID_RibbonAddInsPanel", "ID_SecondRow"},
    {"ID_RibbonHomeTab", "ID_RibbonAddInsPanel", "ID_RibbonAddInsRow"},
    {"ID_RibbonViewTab", "ID_NewPanel", "ID_NewRow"},
    {"ID_NewTab", "ID_NewPanel", "ID_NewRow"},
};

bool isOrdered(const QString& id)
{
    for (int i = 0; i < 4; ++i) {
        if (id.compare(QLatin1String(kIdentifiers[i]), Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

template <std::size_t N>
QString pick(FuzzedDataProvider& input, const char* const (&choices)[N])
{
    return QString::fromLatin1(choices[input.ConsumeIntegralInRange<std::size_t>(0, N - 1)]);
}
} // namespace

RibbonCallSequence::RibbonCallSequence(ModuleUnderTest& module, FuzzedDataProvider& input)
    : m_module(module), m_input(input)
{}

void RibbonCallSequence::play()
{
    for (int steps = 0; steps < kMaxSteps && m_input.remaining_bytes() > 0; ++steps)
        step();
}

void RibbonCallSequence::step()
{
    switch (m_input.ConsumeIntegralInRange(0, 8)) {
    case 0:
    case 1:
        loadRecord();
        break;
    case 2:
        m_module.unload(identifier());
        checkAfter(true);
        return;
    case 3: {
        const QString id = identifier();
        const bool visible = m_input.ConsumeBool();
        m_module.setVisibility(id, visible);
        FuzzFailure::check(UiInvariants::visibility(*GetFxHostServices()->GetUI(), id, visible));
        break;
    }
    case 4:
        m_module.loadExportTable();
        break;
    case 5:
        m_module.unloadExportTable();
        break;
    case 6:
        m_module.mainFrameCreated();
        break;
    case 7:
        m_module.mainFrameDestroyed();
        break;
    default:
        // The same record handed over twice in a row: the second call finds it and does nothing.
        if (!m_records.empty())
            m_module.load(m_records.front().get(), m_input.ConsumeIntegral<int>());
        break;
    }
    checkAfter(false);
}

void RibbonCallSequence::loadRecord()
{
    RibbonItem* record = makeRecord(0);
    if (isOrdered(record->id)) {
        record->tabId = QLatin1String(kPlaces[0][0]);
        record->panelId = QLatin1String(kPlaces[0][1]);
        record->rowId = QLatin1String(kPlaces[0][2]);
    }
    // The position never decides anything: any value is fine.
    m_module.load(record, m_input.ConsumeIntegral<int>());
}

void RibbonCallSequence::checkAfter(bool unloaded)
{
    const CFxHostUI& ui = *GetFxHostServices()->GetUI();
    FuzzFailure::check(UiInvariants::rowsAndMarks(ui));
    FuzzFailure::check(UiInvariants::orderedButtons(ui));
    FuzzFailure::check(UiInvariants::noEmptyAddIns(ui, unloaded));
    FuzzFailure::check(UiInvariants::exportTableEntries(ui));
}

RibbonItem* RibbonCallSequence::makeRecord(int depth)
{
    m_records.push_back(std::make_unique<RibbonItem>());
    RibbonItem* record = m_records.back().get();
    record->id = identifier();
    record->text = text();
    record->type = pick(m_input, kTypes);
    const auto& place = kPlaces[m_input.ConsumeIntegralInRange<std::size_t>(0, 4)];
    record->tabId = QLatin1String(place[0]);
    record->panelId = QLatin1String(place[1]);
    record->rowId = QLatin1String(place[2]);
    record->tabText = record->panelText = text();
    record->commandName = text();
    record->description = text();
    record->smallIcon = record->largeIcon = QStringLiteral(":/missing.png");
    const int children = depth < kMaxDepth ? m_input.ConsumeIntegralInRange(0, 3) : 0;
    for (int i = 0; i < children && m_records.size() < kMaxRecords; ++i)
        record->children << makeRecord(depth + 1);
    return record;
}

QString RibbonCallSequence::identifier()
{
    if (m_input.ConsumeIntegralInRange(0, 15) == 0)
        return text();
    return pick(m_input, kIdentifiers);
}

QString RibbonCallSequence::text()
{
    QString made = QString::fromStdString(m_input.ConsumeRandomLengthString(12));
    while (made.startsWith(QLatin1Char('~')))
        made.remove(0, 1);
    return made;
}
