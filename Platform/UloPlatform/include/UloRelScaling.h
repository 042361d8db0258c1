#pragma once

// The 4-bit step code of relative dimming and blinds: bit 3 the direction
// (set: increase), bits 0-2 the step (0 stop, n a step of 100 / 2^(n-1) %).
// AsByte: 0 for 0.0 and NaN, else the nearest step on a log scale (a
// magnitude on the geometric mean of two steps takes the smaller one).
// FromByte reads the low four bits; every code reads back to itself except 8
// (increase with step 0), which reads as 0.0 and so becomes 0.
unsigned char GetRelScalingAsByte(const double& percent);
double GetRelScalingFromByte(unsigned char code);
