#pragma once

/// The identifier of a text with a character beyond the BMP. It needs all 32 bits.
constexpr unsigned int nonBmpText = 0x80000001;

/// An identifier without a text.
constexpr unsigned int noText = 0x00010001;
