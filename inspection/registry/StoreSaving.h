#pragma once

/// Saves the store at once, so that its file is whole afterwards: where the disk is full the store
/// itself would put half a file in the place of the one that there was, and report success. False
/// where not everything could be saved; the file is then the one that there was.
bool saveStore();
