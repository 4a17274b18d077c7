// The driver's menu commands: `menu ITEM [INDEX]` and `menuitem ITEM [INDEX]`.
#pragma once

namespace tessarine::drive {

class Driver;
void AddMenuCommands(Driver& driver);

}  // namespace tessarine::drive
