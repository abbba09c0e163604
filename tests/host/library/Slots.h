#pragma once

/// Calls every operation of the services object and of its managers by the number of its slot, and
/// prints a line for each: "manager.operation=result".
void callEverySlot(void* services);
