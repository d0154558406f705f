# Usage: mp4_matrix.pl FILE A B C D
# Writes the display matrix into the first track of an MP4: a stored point x, y is shown at
# A x + C y, B x + D y.
use strict;
use warnings;

my ($file, @matrix) = @ARGV;
open my $in, '<:raw', $file or die "$file: $!\n";
my $data = do { local $/; <$in> };
close $in;

my $at = index $data, 'tkhd';
die "$file has no track header\n" if $at < 0;
my $version = unpack 'C', substr $data, $at + 4, 1;
# Behind the name: version and flags, the times and track number, then 16 bytes of layer, group
# and volume.
my $offset = $at + 4 + 4 + ($version == 1 ? 32 : 20) + 16;
my ($a, $b, $c, $d) = map { $_ * 0x10000 } @matrix;
substr $data, $offset, 36, pack 'l>9', $a, $b, 0, $c, $d, 0, 0, 0, 0x40000000;

open my $out, '>:raw', $file or die "$file: $!\n";
print $out $data;
close $out or die "$file: $!\n";
