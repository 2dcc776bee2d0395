// BER octets: what the writer builds, and that the reader takes nothing that is not there.
#include "devcomm/ber_reader.h"
#include "devcomm/ber_writer.h"

#include <gtest/gtest.h>
#include <vector>

namespace {} // namespace
