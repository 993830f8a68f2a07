#pragma once

#include "complex/complexfields.h"
#include "platform/messagebox.h"

// The Complex Calculator's memory: one complex value kept as two texts,
// txtmemoryReal and txtmemoryImaginar, empty when there is none.
namespace velmora::complex {

// M+: adds the result fields, each rounded to 5 places, to the memory.
// Refused for a null result line ("0." or "0") and, with an empty memory,
// for an empty result line.
void MemoryAdd(ComplexFields& fields, platform::MessageBox& box);
// MC: empties the memory and hides its marker.
void MemoryClear(ComplexFields& fields);
// "As (A+iB)" and "As (C+iD)": the memory into Complex 1 or Complex 2.
void MemoryAsZ1(ComplexFields& fields, platform::MessageBox& box);
void MemoryAsZ2(ComplexFields& fields, platform::MessageBox& box);

}  // namespace velmora::complex
