# Usage: hevc_add_hdr10_plus.pl FILE
# Puts HDR10+ metadata (SMPTE ST 2094-40) before each picture of a raw H.265 stream, as encoders do:
# in a message registered by ITU-T T.35.
use strict;
use warnings;

my ($file) = @ARGV;
open my $in, '<:raw', $file or die "$file: $!\n";
my $data = do { local $/; <$in> };
close $in;

# [bits, value]: one window, a target of 400 cd/m², its brightest red, green and blue, their mean, no
# distribution, nothing of the curve.
my @fields = (
    [8, 0xb5], [16, 0x003c], [16, 1], [8, 4], [8, 1], [2, 1], [27, 400], [1, 0],
    [17, 60000], [17, 60000], [17, 60000], [17, 20000], [4, 0], [10, 0], [1, 0], [1, 0], [1, 0],
);
my $bits = join '', map { sprintf '%0*b', @$_ } @fields;
my $payload = pack 'B*', $bits . '0' x (-length($bits) % 8);
my $message = pack 'C C a* C', 4, length $payload, $payload, 0x80;
# No start code inside.
$message =~ s/\x00\x00(?=[\x00-\x03])/\x00\x00\x03/g;
my $start = "\x00\x00\x00\x01";
my $unit = $start . "\x4e\x01" . $message;

my $result = '';
my $pictures = 0;
for my $nal (grep { length } split /\x00{2,3}\x01/, $data) {
    my ($header, undef, $first) = unpack 'C3', $nal;
    my $is_first_slice = ($header >> 1 & 63) < 32 && $first & 0x80;
    $pictures += $is_first_slice ? 1 : 0;
    $result .= ($is_first_slice ? $unit : '') . $start . $nal;
}
die "$file has no pictures\n" if !$pictures;

open my $out, '>:raw', $file or die "$file: $!\n";
print $out $result;
close $out or die "$file: $!\n";
