# Usage: random_bytes.pl COUNT
# Prints bytes that look random and are the same on every run.
use strict;
use warnings;

binmode STDOUT;
my $state = 12345;
for (1 .. $ARGV[0]) {
    $state = ($state * 1103515245 + 12345) % 2147483648;
    print chr($state >> 16 & 0xff);
}
