.pragma library

// The number of decimal digits of an integer of 32 bits, without its sign. Larger numbers are cut to 32 bits.
function numDigits(x) {
    const sign = x >> 31;
    const magnitude = (x ^ sign) - sign;
    return (Math.log10(magnitude) | 0) + 1; // of 0, the logarithm is cut from -Infinity to 0
}

// The time of day in the distance between two times in milliseconds: {hours, minutes, seconds}, without whole days.
function timeElapsedBetween(from, to) {
    const delta = Math.abs(to - from) / 1000 % 86400;
    return {
        hours: Math.floor(delta / 3600),
        minutes: Math.floor(delta % 3600 / 60),
        seconds: Math.floor(delta % 60)
    };
}
