#pragma once

// The 4-bit step code of relative dimming and blinds: bit 3 the direction
// (set: increase), bits 0-2 the step (0 stop, n a step of 100 / 2^(n-1) %).
unsigned char GetRelScalingAsByte(const double& percent);
double GetRelScalingFromByte(unsigned char code);
