#include "MachineFields.h"

namespace coinlight {

void ClearMachineFields(MachineFields& fields) {
    for (std::size_t column = 0; column < kMachineFieldCount; ++column) {
        if (column != Column(MachineField::Machine) && column != Column(MachineField::Rom)) {
            fields.values[column].clear();
        }
    }
    fields.crcs.clear();
}

void ClearMachineRecord(MachineFields& fields) {
    for (auto& value : fields.values) {
        value.clear();
    }
    fields.crcs.clear();
}

} // namespace coinlight
