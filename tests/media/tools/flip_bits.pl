# Usage: flip_bits.pl IN OUT COUNT
# Copies a file with COUNT single bits flipped, evenly spread from a quarter to the whole of it.
use strict;
use warnings;

my ($from, $to, $count) = @ARGV;
open my $in, '<:raw', $from or die "$from: $!\n";
my $data = do { local $/; <$in> };
close $in;

my $first = length($data) / 4;
my $step = (length($data) - $first) / $count;
for my $i (0 .. $count - 1) {
    my $at = int($first + $i * $step);
    substr($data, $at, 1) ^= chr(1 << ($i % 8));
}

open my $out, '>:raw', $to or die "$to: $!\n";
print $out $data;
close $out or die "$to: $!\n";
